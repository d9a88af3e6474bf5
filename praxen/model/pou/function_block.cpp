// The descriptions of FunctionBlock and FunctionBlocks.
#include "praxen/model/pou/function_block.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<FunctionBlock>();
template const ClassDescription& describe::Describe<FunctionBlocks>();

}  // namespace praxen
