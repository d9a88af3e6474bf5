// The description of IControlModule.
#include "praxen/model/pou/i_control_module.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<IControlModule>();

}  // namespace praxen
