// The description of GraphPos.
#include "praxen/model/pou/graph_pos.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<GraphPos>();

}  // namespace praxen
