// The members of CodeBlocks, and the descriptions of the code blocks whose content is one text.
#include "praxen/model/pou/code_blocks.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

namespace {

template <auto Add>
Member Adding() {
  return method<Add>("Appends the code block.", {"code"});
}
template <auto Add, class Form>
Member Creating() {
  return method<Add, Form::kByReference>(
      "Creates a code block with the given values and appends it.", Form::ParameterNames());
}

}  // namespace

Members CodeBlocks::members() {
  return additions() +
         Members{Adding<&CodeBlocks::AddSTCodeBlock>(),
                 Creating<&CodeBlocks::AddSTCodeBlock1, STCodeBlock::Form>(),
                 Creating<&CodeBlocks::AddSTCodeBlock2, STCodeBlock::LongForm>(),
                 Adding<&CodeBlocks::AddLDCodeBlock>(),
                 Creating<&CodeBlocks::AddLDCodeBlock1, LDCodeBlock::Form>(),
                 Creating<&CodeBlocks::AddLDCodeBlock2, LDCodeBlock::LongForm>(),
                 Adding<&CodeBlocks::AddFBDCodeBlock>(),
                 Creating<&CodeBlocks::AddFBDCodeBlock1, FBDCodeBlock::Form>(),
                 Creating<&CodeBlocks::AddFBDCodeBlock2, FBDCodeBlock::LongForm>(),
                 Adding<&CodeBlocks::AddILCodeBlock>(),
                 Creating<&CodeBlocks::AddILCodeBlock1, ILCodeBlock::Form>(),
                 Adding<&CodeBlocks::AddSFCCodeBlock>(),
                 Creating<&CodeBlocks::AddSFCCodeBlock1, SFCCodeBlock::Form>(),
                 Creating<&CodeBlocks::AddSFCCodeBlock2, SFCCodeBlock::LongForm>()} +
         lookups() + positions() + Members{Adding<&CodeBlocks::AddFDCodeBlock>()};
}

Layout CodeBlocks::layout() {
  return {.elements = {choice<STCodeBlock, ICodeBlock, &ICodeBlock::IsSTCodeBlock>(),
                       choice<ILCodeBlock, ICodeBlock, &ICodeBlock::IsILCodeBlock>(),
                       choice<SFCCodeBlock, ICodeBlock, &ICodeBlock::IsSFCCodeBlock>(),
                       choice<LDCodeBlock, ICodeBlock, &ICodeBlock::IsLDCodeBlock>(),
                       choice<FBDCodeBlock, ICodeBlock, &ICodeBlock::IsFBDCodeBlock>(),
                       choice<FDCodeBlock, ICodeBlock, &ICodeBlock::IsFDCodeBlock>()},
          .container = Container::WhenNotEmpty};
}

template const ClassDescription& describe::Describe<ICodeBlock>();
template const ClassDescription& describe::Describe<STCodeBlock>();
template const ClassDescription& describe::Describe<LDCodeBlock>();
template const ClassDescription& describe::Describe<FBDCodeBlock>();
template const ClassDescription& describe::Describe<ILCodeBlock>();
template const ClassDescription& describe::Describe<CodeBlocks>();

}  // namespace praxen
