// The descriptions of ExtensibleParameter and ExtensibleParameters.
#include "praxen/model/data/extensible_parameter.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<ExtensibleParameter>();
template const ClassDescription& Describe<ExtensibleParameters>();

}  // namespace praxen
