// The descriptions of Variable and its list.
#include "praxen/model/data/variable.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<Variable>();
template const ClassDescription& describe::Describe<Variables>();

}  // namespace praxen
