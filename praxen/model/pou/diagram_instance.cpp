// The descriptions of DiagramInstance and DiagramInstances.
#include "praxen/model/pou/diagram_instance.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<DiagramInstance>();
template const ClassDescription& describe::Describe<DiagramInstances>();

}  // namespace praxen
