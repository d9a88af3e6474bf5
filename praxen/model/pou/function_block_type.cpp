// The description of FunctionBlockType.
#include "praxen/model/pou/function_block_type.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<FunctionBlockType>();

}  // namespace praxen
