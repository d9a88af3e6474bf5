// The description of ApplicationVariables.
#include "praxen/model/application/application_variables.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<ApplicationVariables>();

}  // namespace praxen
