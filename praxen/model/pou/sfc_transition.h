// SFCTransition, a transition of a sequential function chart.
#ifndef PRAXEN_MODEL_POU_SFC_TRANSITION_H_
#define PRAXEN_MODEL_POU_SFC_TRANSITION_H_

#include "praxen/model/pou/sfc_element.h"

namespace praxen {

class SFCTransition final : public SFCElement<SFCTransition> {
 public:
  Text Name, Dest, Transition_STCode;

  static constexpr std::string_view kHelp = "A transition of a sequential function chart.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&SFCTransition::Name>("Name of the transition; required for writing."),
        property<&SFCTransition::Dest>("Name of the step that the transition leads to."),
        property<&SFCTransition::Transition_STCode>("Structured Text of the condition."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&SFCTransition::Name>(), optional<&SFCTransition::Dest>()},
            .children = {content<&SFCTransition::Transition_STCode>()}};
  }
  using Form = describe::Creation<SFCTransition, &SFCTransition::Name>;
  using LongForm =
      describe::Extended<Form, &SFCTransition::Transition_STCode, &SFCTransition::Dest>;
};

extern template const describe::ClassDescription& describe::Describe<SFCTransition>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SFC_TRANSITION_H_
