// ILCodeBlock, a code block in Instruction List.
#ifndef PRAXEN_MODEL_POU_IL_CODE_BLOCK_H_
#define PRAXEN_MODEL_POU_IL_CODE_BLOCK_H_

#include "praxen/model/pou/code_block.h"
#include "praxen/model/pou/il_row.h"

namespace praxen {

class ILCodeBlock final : public CodeBlock<ILCodeBlock> {
 public:
  Text Name;
  Ref<praxen::ILRows> ILRows = New<praxen::ILRows>();

  static constexpr std::string_view kHelp = "A code block in Instruction List.";
  static Members members() {
    return {property<&ILCodeBlock::Name>("Name of the code block; required for writing."),
            property<&ILCodeBlock::ILRows>("The rows."), serialize()};
  }
  static Layout layout() {
    return {.attributes = {required<&ILCodeBlock::Name>()},
            .children = {items<&ILCodeBlock::ILRows>()}};
  }
  using Form = Creation<ILCodeBlock, &ILCodeBlock::Name>;
};

extern template const ClassDescription& Describe<ILCodeBlock>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_IL_CODE_BLOCK_H_
