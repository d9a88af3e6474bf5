// The descriptions of ConnectedHWLibrary and its list.
#include "praxen/model/application/connected_hw_library.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<ConnectedHWLibrary>();
template const ClassDescription& Describe<ConnectedHWLibraries>();

}  // namespace praxen
