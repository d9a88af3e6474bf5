// CodeBlocks, the code of a program organisation unit, with all classes of code blocks.
#ifndef PRAXEN_MODEL_POU_CODE_BLOCKS_H_
#define PRAXEN_MODEL_POU_CODE_BLOCKS_H_

#include "praxen/model/collection.h"
#include "praxen/model/pou/fd_code_block.h"
#include "praxen/model/pou/il_code_block.h"
#include "praxen/model/pou/sfc_code_block.h"
#include "praxen/model/pou/text_code_block.h"

namespace praxen {

class CodeBlocks final : public Collection<CodeBlocks, ICodeBlock> {
 public:
  void AddSTCodeBlock(const Ref<STCodeBlock>& code) { Add(code); }
  Ref<STCodeBlock> AddSTCodeBlock1(const auto&... arguments) {
    return Create<STCodeBlock::Form>(arguments...);
  }
  Ref<STCodeBlock> AddSTCodeBlock2(const auto&... arguments) {
    return Create<STCodeBlock::LongForm>(arguments...);
  }
  void AddLDCodeBlock(const Ref<LDCodeBlock>& code) { Add(code); }
  Ref<LDCodeBlock> AddLDCodeBlock1(const auto&... arguments) {
    return Create<LDCodeBlock::Form>(arguments...);
  }
  Ref<LDCodeBlock> AddLDCodeBlock2(const auto&... arguments) {
    return Create<LDCodeBlock::LongForm>(arguments...);
  }
  void AddFBDCodeBlock(const Ref<FBDCodeBlock>& code) { Add(code); }
  Ref<FBDCodeBlock> AddFBDCodeBlock1(const auto&... arguments) {
    return Create<FBDCodeBlock::Form>(arguments...);
  }
  Ref<FBDCodeBlock> AddFBDCodeBlock2(const auto&... arguments) {
    return Create<FBDCodeBlock::LongForm>(arguments...);
  }
  void AddILCodeBlock(const Ref<ILCodeBlock>& code) { Add(code); }
  Ref<ILCodeBlock> AddILCodeBlock1(const auto&... arguments) {
    return Create<ILCodeBlock::Form>(arguments...);
  }
  void AddSFCCodeBlock(const Ref<SFCCodeBlock>& code) { Add(code); }
  Ref<SFCCodeBlock> AddSFCCodeBlock1(const auto&... arguments) {
    return Create<SFCCodeBlock::Form>(arguments...);
  }
  Ref<SFCCodeBlock> AddSFCCodeBlock2(const auto&... arguments) {
    return Create<SFCCodeBlock::LongForm>(arguments...);
  }
  void AddFDCodeBlock(const Ref<FDCodeBlock>& code) { Add(code); }

  static constexpr std::string_view kHelp = "Code blocks of all languages, in order.";
  static constexpr std::string_view kArgument = "icb";
  static describe::Members members() {
    using namespace describe;
    constexpr std::string_view kCreates =
        "Creates a code block with the given values and appends it.";
    return additions() +
           Members{appending<&T::AddSTCodeBlock>(),
                   creation<STCodeBlock::Form>("AddSTCodeBlock1", kCreates),
                   creation<STCodeBlock::LongForm>("AddSTCodeBlock2", kCreates),
                   appending<&T::AddLDCodeBlock>(),
                   creation<LDCodeBlock::Form>("AddLDCodeBlock1", kCreates),
                   creation<LDCodeBlock::LongForm>("AddLDCodeBlock2", kCreates),
                   appending<&T::AddFBDCodeBlock>(),
                   creation<FBDCodeBlock::Form>("AddFBDCodeBlock1", kCreates),
                   creation<FBDCodeBlock::LongForm>("AddFBDCodeBlock2", kCreates),
                   appending<&T::AddILCodeBlock>(),
                   creation<ILCodeBlock::Form>("AddILCodeBlock1", kCreates),
                   appending<&T::AddSFCCodeBlock>(),
                   creation<SFCCodeBlock::Form>("AddSFCCodeBlock1", kCreates),
                   creation<SFCCodeBlock::LongForm>("AddSFCCodeBlock2", kCreates)} +
           lookups() + positions() + Members{appending<&T::AddFDCodeBlock>()};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.elements = ICodeBlock::choices(), .container = Container::WhenNotEmpty};
  }

 private:
  template <auto Add>
  static describe::Member appending() {
    using namespace describe;
    return method<Add>("Appends the code block.", {"code"});
  }
};

extern template struct describe::Published<CodeBlocks>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_CODE_BLOCKS_H_
