// The descriptions of DiagramInstance and DiagramInstances.
#include "praxen/model/pou/diagram_instance.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<DiagramInstance>();
template const ClassDescription& Describe<DiagramInstances>();

}  // namespace praxen
