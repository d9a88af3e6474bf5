// The descriptions of FunctionBlock and FunctionBlocks.
#include "praxen/model/pou/function_block.h"

#include "praxen/describe/define.h"

namespace praxen {

template const ClassDescription& Describe<FunctionBlock>();
template const ClassDescription& Describe<FunctionBlocks>();

}  // namespace praxen
