// The descriptions of ConnectedApplication and its list.
#include "praxen/model/application/connected_application.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<ConnectedApplication>();
template const ClassDescription& Describe<ConnectedApplications>();

}  // namespace praxen
