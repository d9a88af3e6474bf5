// The description of FunctionBlockType.
#include "praxen/model/pou/function_block_type.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<FunctionBlockType>();

}  // namespace praxen
