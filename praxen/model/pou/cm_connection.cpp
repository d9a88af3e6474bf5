// The descriptions of CMConnection and CMConnections.
#include "praxen/model/pou/cm_connection.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<CMConnection>();
template const ClassDescription& describe::Describe<CMConnections>();

}  // namespace praxen
