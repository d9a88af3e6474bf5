// The descriptions of ConnectedLibrary and its list.
#include "praxen/model/application/connected_library.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<ConnectedLibrary>();
template const ClassDescription& Describe<ConnectedLibraries>();

}  // namespace praxen
