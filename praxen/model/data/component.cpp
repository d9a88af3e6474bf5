// The descriptions of Component and Components.
#include "praxen/model/data/component.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<Component>();
template const ClassDescription& describe::Describe<Components>();

}  // namespace praxen
