// The description of DiagramType.
#include "praxen/model/pou/diagram_type.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<DiagramType>();

}  // namespace praxen
