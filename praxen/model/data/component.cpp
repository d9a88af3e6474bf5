// The descriptions of Component and Components.
#include "praxen/model/data/component.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<Component>();
template const ClassDescription& Describe<Components>();

}  // namespace praxen
