// LDCodeBlock, a code block in Ladder Diagram.
#ifndef PRAXEN_MODEL_POU_LD_CODE_BLOCK_H_
#define PRAXEN_MODEL_POU_LD_CODE_BLOCK_H_

#include "praxen/model/pou/text_code_block.h"

namespace praxen {

class LDCodeBlock final : public TextCodeBlock<LDCodeBlock> {
 public:
  /// Not counted among the live objects of the library.
  LDCodeBlock() : TextCodeBlock(Counting::No) {}

  static constexpr std::string_view kHelp = "A code block in Ladder Diagram.";
  static describe::Layout layout() {
    using namespace describe;
    return unescapingLayout();
  }
};

extern template const describe::ClassDescription& describe::Describe<LDCodeBlock>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_LD_CODE_BLOCK_H_
