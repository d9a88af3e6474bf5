// The descriptions of ConnectedLibrary and its list.
#include "praxen/model/application/connected_library.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<ConnectedLibrary>();
template const ClassDescription& describe::Describe<ConnectedLibraries>();

}  // namespace praxen
