// The descriptions of Parameter and Parameters.
#include "praxen/model/data/parameter.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<Parameter>();
template const ClassDescription& describe::Describe<Parameters>();

}  // namespace praxen
