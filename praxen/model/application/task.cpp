// The description of Task.
#include "praxen/model/application/task.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<Task>();

}  // namespace praxen
