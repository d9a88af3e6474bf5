// The description of GraphSize.
#include "praxen/model/pou/graph_size.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<GraphSize>();

}  // namespace praxen
