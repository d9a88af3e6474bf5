// The descriptions of GraphNode and its list.
#include "praxen/model/data/graph_node.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<GraphNode>();
template const ClassDescription& describe::Describe<GraphNodes>();

}  // namespace praxen
