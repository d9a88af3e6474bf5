// The descriptions of ExecutionOrder, its groups and their instances.
#include "praxen/model/application/execution_order.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<ExecutionInstance>();
template const ClassDescription& describe::Describe<ExecutionGroup>();
template const ClassDescription& describe::Describe<ExecutionOrder>();

}  // namespace praxen
