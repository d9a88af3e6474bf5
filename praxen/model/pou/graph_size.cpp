// The description of GraphSize.
#include "praxen/model/pou/graph_size.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<GraphSize>();

}  // namespace praxen
