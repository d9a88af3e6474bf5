// The descriptions of CMConnection and CMConnections.
#include "praxen/model/pou/cm_connection.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<CMConnection>();
template const ClassDescription& Describe<CMConnections>();

}  // namespace praxen
