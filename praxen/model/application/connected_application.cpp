// The descriptions of ConnectedApplication and its list.
#include "praxen/model/application/connected_application.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<ConnectedApplication>();
template const ClassDescription& describe::Describe<ConnectedApplications>();

}  // namespace praxen
