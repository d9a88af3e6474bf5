// The description of GraphPos.
#include "praxen/model/pou/graph_pos.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<GraphPos>();

}  // namespace praxen
