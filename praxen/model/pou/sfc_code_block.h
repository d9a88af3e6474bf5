// SFCCodeBlock, a code block that holds a sequential function chart.
#ifndef PRAXEN_MODEL_POU_SFC_CODE_BLOCK_H_
#define PRAXEN_MODEL_POU_SFC_CODE_BLOCK_H_

#include "praxen/model/pou/code_block.h"
#include "praxen/model/pou/sfc_elements.h"

namespace praxen {

class SFCCodeBlock final : public describe::Described<SFCCodeBlock, ICodeBlock> {
 public:
  Text Name;
  bool SeqControl = true, StepElapsedTime = false, SFCViewerAspect = false;
  Ref<praxen::SFCElements> SFCElements = New<praxen::SFCElements>();

  static constexpr std::string_view kHelp = "A code block with a sequential function chart.";
  static describe::Members members() {
    using namespace describe;
    return {property<&T::Name>("Name of the code block."),
            property<&T::SeqControl>("Whether the chart has sequence control."),
            property<&T::StepElapsedTime>("Whether steps show their elapsed time."),
            property<&T::SFCViewerAspect>("Whether the chart has a viewer aspect."),
            property<&T::SFCElements>("The top-level sequence of the chart."),
            serialize()};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), optional<&T::SeqControl>(),
                           optional<&T::StepElapsedTime>(), optional<&T::SFCViewerAspect>()},
            .children = {items<&T::SFCElements>()}};
  }
  using Form = describe::Creation<T, &T::Name>;
  using LongForm = describe::Extended<Form, &T::SeqControl, &T::StepElapsedTime>;
};

extern template struct describe::Published<SFCCodeBlock>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SFC_CODE_BLOCK_H_
