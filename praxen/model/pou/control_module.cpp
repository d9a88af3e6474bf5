// The description of ControlModule.
#include "praxen/model/pou/control_module.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<ControlModule>();

}  // namespace praxen
