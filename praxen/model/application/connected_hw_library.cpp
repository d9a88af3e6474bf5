// The descriptions of ConnectedHWLibrary and its list.
#include "praxen/model/application/connected_hw_library.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<ConnectedHWLibrary>();
template const ClassDescription& describe::Describe<ConnectedHWLibraries>();

}  // namespace praxen
