// FBDCodeBlock, a code block in Function Block Diagram.
#ifndef PRAXEN_MODEL_POU_FBD_CODE_BLOCK_H_
#define PRAXEN_MODEL_POU_FBD_CODE_BLOCK_H_

#include "praxen/model/pou/text_code_block.h"

namespace praxen {

class FBDCodeBlock final : public TextCodeBlock<FBDCodeBlock> {
 public:
  static constexpr std::string_view kHelp = "A code block in Function Block Diagram.";
  static describe::Layout layout() {
    using namespace describe;
    return unescapingLayout();
  }
};

extern template const describe::ClassDescription& describe::Describe<FBDCodeBlock>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_FBD_CODE_BLOCK_H_
