// The description of AccessVariables.
#include "praxen/model/application/access_variables.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<AccessVariables>();

}  // namespace praxen
