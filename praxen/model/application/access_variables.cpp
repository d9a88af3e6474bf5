// The description of AccessVariables.
#include "praxen/model/application/access_variables.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<AccessVariables>();

}  // namespace praxen
