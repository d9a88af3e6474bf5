// ISFCElement, the kind of what a sequence of a chart holds, with SFCStep and SFCTransition.
#ifndef PRAXEN_MODEL_POU_SFC_ELEMENT_H_
#define PRAXEN_MODEL_POU_SFC_ELEMENT_H_

#include "praxen/describe/creation.h"
#include "praxen/describe/kind.h"

namespace praxen {

class SFCStep;
class SFCTransition;
class SFCSubSequence;
class SFCSelection;
class SFCSimultaneous;

/// An element of a sequence of a sequential function chart.
class ISFCElement : public describe::KindBase<ISFCElement> {
 public:
  ISFCElement() = default;

  virtual bool IsSFCStep() const { return Answer<&T::IsSFCStep>(); }
  virtual bool IsSFCTransition() const { return Answer<&T::IsSFCTransition>(); }
  virtual bool IsSFCSubSequence() const { return Answer<&T::IsSFCSubSequence>(); }
  virtual bool IsSFCSelection() const { return Answer<&T::IsSFCSelection>(); }
  virtual bool IsSFCSimultaneous() const { return Answer<&T::IsSFCSimultaneous>(); }

  using Classes = describe::KindClasses<describe::Asked<SFCStep, &T::IsSFCStep>,
                                        describe::Asked<SFCTransition, &T::IsSFCTransition>,
                                        describe::Asked<SFCSubSequence, &T::IsSFCSubSequence>,
                                        describe::Asked<SFCSelection, &T::IsSFCSelection>,
                                        describe::Asked<SFCSimultaneous, &T::IsSFCSimultaneous>>;

  static constexpr std::string_view kHelp = "An element of a sequential function chart.";
  static describe::Members members() {
    using namespace describe;
    return Classes::questions();
  }

 protected:
  using KindBase::KindBase;
};

class SFCStep final : public describe::Described<SFCStep, ISFCElement> {
 public:
  Text Name;
  bool InitialStep = false;
  Text P1_Action_STCode, P0_Action_STCode, N_Action_STCode;

  static constexpr std::string_view kHelp = "A step of a sequential function chart.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::Name>("Name of the step."),
        property<&T::InitialStep>("Whether the sequence starts with the step."),
        property<&T::P1_Action_STCode>("Structured Text of the action with qualifier P1."),
        property<&T::P0_Action_STCode>("Structured Text of the action with qualifier P0."),
        property<&T::N_Action_STCode>("Structured Text of the action with qualifier N."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), optional<&T::InitialStep>()},
            .children = {action<&T::P1_Action_STCode>(u"P1_Action"),
                         action<&T::N_Action_STCode>(u"N_Action"),
                         action<&T::P0_Action_STCode>(u"P0_Action")}};
  }
  using Form = describe::Creation<T, &T::Name>;
  using LongForm = describe::Extended<Form, &T::InitialStep, &T::P1_Action_STCode,
                                      &T::N_Action_STCode, &T::P0_Action_STCode>;

 private:
  template <auto Code>
  static describe::Child action(std::u16string_view element) {
    using namespace describe;
    return textIn<Code>(element, u"ST_Code");
  }
};

class SFCTransition final : public describe::Described<SFCTransition, ISFCElement> {
 public:
  Text Name, Dest, Transition_STCode;

  static constexpr std::string_view kHelp = "A transition of a sequential function chart.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::Name>("Name of the transition."),
        property<&T::Dest>("Name of the step that the transition leads to."),
        property<&T::Transition_STCode>("Structured Text of the condition."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), optional<&T::Dest>()},
            .children = {content<&T::Transition_STCode>()}};
  }
  using Form = describe::Creation<T, &T::Name>;
  using LongForm = describe::Extended<Form, &T::Transition_STCode, &T::Dest>;
};

extern template struct describe::Published<ISFCElement>;
extern template struct describe::Published<SFCStep>;
extern template struct describe::Published<SFCTransition>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SFC_ELEMENT_H_
