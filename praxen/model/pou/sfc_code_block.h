// SFCCodeBlock, a code block that holds a sequential function chart.
#ifndef PRAXEN_MODEL_POU_SFC_CODE_BLOCK_H_
#define PRAXEN_MODEL_POU_SFC_CODE_BLOCK_H_

#include "praxen/model/pou/code_block.h"
#include "praxen/model/pou/sfc_elements.h"

namespace praxen {

class SFCCodeBlock final : public CodeBlock<SFCCodeBlock> {
 public:
  Text Name;
  bool SeqControl = true, StepElapsedTime = false, SFCViewerAspect = false;
  Ref<praxen::SFCElements> SFCElements = New<praxen::SFCElements>();

  static constexpr std::string_view kHelp = "A code block with a sequential function chart.";
  static describe::Members members() {
    using namespace describe;
    return {property<&SFCCodeBlock::Name>("Name of the code block; required for writing."),
            property<&SFCCodeBlock::SeqControl>("Whether the chart has sequence control."),
            property<&SFCCodeBlock::StepElapsedTime>("Whether steps show their elapsed time."),
            property<&SFCCodeBlock::SFCViewerAspect>("Whether the chart has a viewer aspect."),
            property<&SFCCodeBlock::SFCElements>("The top-level sequence of the chart."),
            serialize()};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&SFCCodeBlock::Name>(), optional<&SFCCodeBlock::SeqControl>(),
                           optional<&SFCCodeBlock::StepElapsedTime>(),
                           optional<&SFCCodeBlock::SFCViewerAspect>()},
            .children = {items<&SFCCodeBlock::SFCElements>()}};
  }
  using Form = describe::Creation<SFCCodeBlock, &SFCCodeBlock::Name>;
  using LongForm =
      describe::Extended<Form, &SFCCodeBlock::SeqControl, &SFCCodeBlock::StepElapsedTime>;
};

extern template const describe::ClassDescription& describe::Describe<SFCCodeBlock>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SFC_CODE_BLOCK_H_
