// STCodeBlock, a code block in Structured Text.
#ifndef PRAXEN_MODEL_POU_ST_CODE_BLOCK_H_
#define PRAXEN_MODEL_POU_ST_CODE_BLOCK_H_

#include "praxen/model/pou/text_code_block.h"

namespace praxen {

class STCodeBlock final : public TextCodeBlock<STCodeBlock> {
 public:
  static constexpr std::string_view kHelp = "A code block in Structured Text.";
};

extern template const describe::ClassDescription& describe::Describe<STCodeBlock>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_ST_CODE_BLOCK_H_
