// The description of Task.
#include "praxen/model/application/task.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<Task>();

}  // namespace praxen
