#include "praxen/model/data/variable.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<Variable>();
template const ClassDescription& Describe<Variables>();

}  // namespace praxen
