// The description of maintenance, and the state that it shows and sets.
#include "praxen/model/maintenance.h"

#include "praxen/core/counters.h"
#include "praxen/describe/define.h"
#include "praxen/xml/xml_string_writer.h"

namespace praxen {

using namespace detail;

int32_t maintenance::NrOfObjects() const { return ObjectCounter(); }

bool maintenance::GetIncludeCRLFInXML() const { return IncludeCRLFInXML(); }

void maintenance::SetIncludeCRLFInXML(const bool& include) { praxen::SetIncludeCRLFInXML(include); }

template struct describe::Published<maintenance>;

}  // namespace praxen
