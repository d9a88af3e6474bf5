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
  static describe::Members members() {
    using namespace describe;
    return {property<&ILCodeBlock::Name>("Name of the code block; required for writing."),
            property<&ILCodeBlock::ILRows>("The rows."), serialize()};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&ILCodeBlock::Name>()},
            .children = {items<&ILCodeBlock::ILRows>()}};
  }
  using Form = describe::Creation<ILCodeBlock, &ILCodeBlock::Name>;
};

extern template const describe::ClassDescription& describe::Describe<ILCodeBlock>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_IL_CODE_BLOCK_H_
