// The description of SingleControlModuleType.
#include "praxen/model/pou/single_control_module_type.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<SingleControlModuleType>();

}  // namespace praxen
