// The description of ControlModuleType.
#include "praxen/model/pou/control_module_type.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<ControlModuleType>();

}  // namespace praxen
