// SFCStep, a step of a sequential function chart.
#ifndef PRAXEN_MODEL_POU_SFC_STEP_H_
#define PRAXEN_MODEL_POU_SFC_STEP_H_

#include "praxen/model/pou/sfc_element.h"

namespace praxen {

class SFCStep final : public SFCElement<SFCStep> {
 public:
  Text Name;
  bool InitialStep = false;
  Text P1_Action_STCode, P0_Action_STCode, N_Action_STCode;

  static constexpr std::string_view kHelp = "A step of a sequential function chart.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&SFCStep::Name>("Name of the step; required for writing."),
        property<&SFCStep::InitialStep>("Whether the sequence starts with the step."),
        property<&SFCStep::P1_Action_STCode>("Structured Text of the action with qualifier P1."),
        property<&SFCStep::P0_Action_STCode>("Structured Text of the action with qualifier P0."),
        property<&SFCStep::N_Action_STCode>("Structured Text of the action with qualifier N."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&SFCStep::Name>(), optional<&SFCStep::InitialStep>()},
            .children = {action<&SFCStep::P1_Action_STCode>(u"P1_Action"),
                         action<&SFCStep::N_Action_STCode>(u"N_Action"),
                         action<&SFCStep::P0_Action_STCode>(u"P0_Action")}};
  }
  using Form = describe::Creation<SFCStep, &SFCStep::Name>;
  using LongForm = describe::Extended<Form, &SFCStep::InitialStep, &SFCStep::P1_Action_STCode,
                                      &SFCStep::N_Action_STCode, &SFCStep::P0_Action_STCode>;

 private:
  template <auto Code>
  static describe::Child action(std::u16string_view element) {
    using namespace describe;
    return textIn<Code>(element, u"ST_Code");
  }
};

extern template const describe::ClassDescription& describe::Describe<SFCStep>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SFC_STEP_H_
