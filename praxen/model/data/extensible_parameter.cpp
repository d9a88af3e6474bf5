// The descriptions of ExtensibleParameter and ExtensibleParameters.
#include "praxen/model/data/extensible_parameter.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<ExtensibleParameter>();
template const ClassDescription& describe::Describe<ExtensibleParameters>();

}  // namespace praxen
