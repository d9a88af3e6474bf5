// The description of IControlModule.
#include "praxen/model/pou/i_control_module.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<IControlModule>();

}  // namespace praxen
