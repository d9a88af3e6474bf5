// The description of SingleControlModuleInst.
#include "praxen/model/pou/single_control_module_inst.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<SingleControlModuleInst>();

}  // namespace praxen
