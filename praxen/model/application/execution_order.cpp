// The descriptions of ExecutionOrder, its groups and their instances.
#include "praxen/model/application/execution_order.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<ExecutionInstance>();
template const ClassDescription& Describe<ExecutionGroup>();
template const ClassDescription& Describe<ExecutionOrder>();

}  // namespace praxen
