// The descriptions of CommVariable and CommVariables.
#include "praxen/model/data/comm_variable.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<CommVariable>();
template const ClassDescription& Describe<CommVariables>();

}  // namespace praxen
