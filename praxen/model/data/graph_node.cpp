#include "praxen/model/data/graph_node.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<GraphNode>();
template const ClassDescription& Describe<GraphNodes>();

}  // namespace praxen
