// The description of ControlModule.
#include "praxen/model/pou/control_module.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<ControlModule>();

}  // namespace praxen
