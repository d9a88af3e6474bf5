// The descriptions of CMParameter and CMParameters.
#include "praxen/model/data/cm_parameter.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<CMParameter>();
template const ClassDescription& Describe<CMParameters>();

}  // namespace praxen
