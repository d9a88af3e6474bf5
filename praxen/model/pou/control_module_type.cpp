// The description of ControlModuleType.
#include "praxen/model/pou/control_module_type.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<ControlModuleType>();

}  // namespace praxen
