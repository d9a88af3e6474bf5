// The descriptions of CommVariable and CommVariables.
#include "praxen/model/data/comm_variable.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<CommVariable>();
template const ClassDescription& describe::Describe<CommVariables>();

}  // namespace praxen
