// The descriptions of GlobalVariable and GlobalVariables.
#include "praxen/model/data/global_variable.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<GlobalVariable>();
template const ClassDescription& Describe<GlobalVariables>();

}  // namespace praxen
