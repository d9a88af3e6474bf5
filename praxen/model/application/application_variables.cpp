// The description of ApplicationVariables.
#include "praxen/model/application/application_variables.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<ApplicationVariables>();

}  // namespace praxen
