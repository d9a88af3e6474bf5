// CodeBlocks, the code of a program organisation unit, with all classes of code blocks.
#ifndef PRAXEN_MODEL_POU_CODE_BLOCKS_H_
#define PRAXEN_MODEL_POU_CODE_BLOCKS_H_

#include "praxen/model/collection.h"
#include "praxen/model/pou/fbd_code_block.h"
#include "praxen/model/pou/fd_code_block.h"
#include "praxen/model/pou/il_code_block.h"
#include "praxen/model/pou/ld_code_block.h"
#include "praxen/model/pou/sfc_code_block.h"
#include "praxen/model/pou/st_code_block.h"

namespace praxen {

class CodeBlocks final : public Collection<CodeBlocks, ICodeBlock> {
 public:
  void AddSTCodeBlock(const Ref<STCodeBlock>& code) { Add(code); }
  Ref<STCodeBlock> AddSTCodeBlock1(const Text& Name) { return Create<STCodeBlock::Form>(Name); }
  Ref<STCodeBlock> AddSTCodeBlock2(const Text& Name, const Text& STcode) {
    return Create<STCodeBlock::LongForm>(Name, STcode);
  }
  void AddLDCodeBlock(const Ref<LDCodeBlock>& code) { Add(code); }
  Ref<LDCodeBlock> AddLDCodeBlock1(const Text& Name) { return Create<LDCodeBlock::Form>(Name); }
  Ref<LDCodeBlock> AddLDCodeBlock2(const Text& Name, const Text& STcode) {
    return Create<LDCodeBlock::LongForm>(Name, STcode);
  }
  void AddFBDCodeBlock(const Ref<FBDCodeBlock>& code) { Add(code); }
  Ref<FBDCodeBlock> AddFBDCodeBlock1(const Text& Name) { return Create<FBDCodeBlock::Form>(Name); }
  Ref<FBDCodeBlock> AddFBDCodeBlock2(const Text& Name, const Text& STcode) {
    return Create<FBDCodeBlock::LongForm>(Name, STcode);
  }
  void AddILCodeBlock(const Ref<ILCodeBlock>& code) { Add(code); }
  Ref<ILCodeBlock> AddILCodeBlock1(const Text& Name) { return Create<ILCodeBlock::Form>(Name); }
  void AddSFCCodeBlock(const Ref<SFCCodeBlock>& code) { Add(code); }
  Ref<SFCCodeBlock> AddSFCCodeBlock1(const Text& Name) { return Create<SFCCodeBlock::Form>(Name); }
  Ref<SFCCodeBlock> AddSFCCodeBlock2(const Text& Name, bool SeqControl, bool StepElapsedTime) {
    return Create<SFCCodeBlock::LongForm>(Name, SeqControl, StepElapsedTime);
  }
  void AddFDCodeBlock(const Ref<FDCodeBlock>& code) { Add(code); }

  static constexpr std::string_view kHelp = "Code blocks of all languages, in order.";
  static constexpr std::string_view kArgument = "icb";
  static describe::Members members();
  static describe::Layout layout();

 private:
  template <class Form, class... Arguments>
  Ref<typename Form::Created> Create(const Arguments&... arguments) {
    return describe::Addition<CodeBlocks, Form>::Run(*this, arguments...);
  }
};

extern template const describe::ClassDescription& describe::Describe<CodeBlocks>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_CODE_BLOCKS_H_
