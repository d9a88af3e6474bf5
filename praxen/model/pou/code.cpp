// The list of the classes of code.
#include "praxen/describe/define.h"
#include "praxen/model/pou/code_block.h"
#include "praxen/model/pou/code_blocks.h"
#include "praxen/model/pou/fd_code_block.h"
#include "praxen/model/pou/il_code_block.h"
#include "praxen/model/pou/sfc_code_block.h"
#include "praxen/model/pou/sfc_element.h"
#include "praxen/model/pou/sfc_elements.h"
#include "praxen/model/pou/text_code_block.h"

namespace praxen {

template struct describe::Published<CodeBlocks>;
template struct describe::Published<FBDCodeBlock>;
template struct describe::Published<FDCodeBlock>;
template struct describe::Published<ICodeBlock>;
template struct describe::Published<ILCodeBlock>;
template struct describe::Published<ILRow>;
template struct describe::Published<ILRows>;
template struct describe::Published<ISFCElement>;
template struct describe::Published<LDCodeBlock>;
template struct describe::Published<SFCBranch>;
template struct describe::Published<SFCBranches>;
template struct describe::Published<SFCCodeBlock>;
template struct describe::Published<SFCElements>;
template struct describe::Published<SFCSelection>;
template struct describe::Published<SFCSimultaneous>;
template struct describe::Published<SFCStep>;
template struct describe::Published<SFCSubSequence>;
template struct describe::Published<SFCTransition>;
template struct describe::Published<STCodeBlock>;

}  // namespace praxen
