// The descriptions of GlobalVariable and GlobalVariables.
#include "praxen/model/data/global_variable.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<GlobalVariable>();
template const ClassDescription& describe::Describe<GlobalVariables>();

}  // namespace praxen
