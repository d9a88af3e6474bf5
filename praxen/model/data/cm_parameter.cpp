// The descriptions of CMParameter and CMParameters.
#include "praxen/model/data/cm_parameter.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<CMParameter>();
template const ClassDescription& describe::Describe<CMParameters>();

}  // namespace praxen
