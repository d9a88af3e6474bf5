// The descriptions of ExternalVariable and ExternalVariables.
#include "praxen/model/data/external_variable.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<ExternalVariable>();
template const ClassDescription& describe::Describe<ExternalVariables>();

}  // namespace praxen
