// The descriptions of Parameter and Parameters.
#include "praxen/model/data/parameter.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<Parameter>();
template const ClassDescription& Describe<Parameters>();

}  // namespace praxen
