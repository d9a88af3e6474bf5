// ISFCElement, the kind of what a sequence of a chart holds, and the base of its classes.
#ifndef PRAXEN_MODEL_POU_SFC_ELEMENT_H_
#define PRAXEN_MODEL_POU_SFC_ELEMENT_H_

#include <type_traits>

#include "praxen/describe/creation.h"
#include "praxen/describe/kind.h"

namespace praxen {

class SFCStep;
class SFCTransition;
class SFCSelection;
class SFCSimultaneous;
class SFCSubSequence;

/// An element of a sequence of a sequential function chart.
class ISFCElement : public describe::KindBase<ISFCElement> {
 public:
  ISFCElement() = default;

  virtual bool IsSFCStep() const { return false; }
  virtual bool IsSFCTransition() const { return false; }
  virtual bool IsSFCSubSequence() const { return false; }
  virtual bool IsSFCSelection() const { return false; }
  virtual bool IsSFCSimultaneous() const { return false; }

  /// Holds an element that is implemented outside the library.
  static Ref<Object> Adapt(detail::Interface* foreign);

  static constexpr std::string_view kHelp = "An element of a sequential function chart.";
  static describe::Members members() {
    using namespace describe;
    return {
        computed<&ISFCElement::IsSFCStep>("Whether it is an SFCStep."),
        computed<&ISFCElement::IsSFCTransition>("Whether it is an SFCTransition."),
        computed<&ISFCElement::IsSFCSubSequence>("Whether it is an SFCSubSequence."),
        computed<&ISFCElement::IsSFCSelection>("Whether it is an SFCSelection."),
        computed<&ISFCElement::IsSFCSimultaneous>("Whether it is an SFCSimultaneous."),
    };
  }

 protected:
  using KindBase::KindBase;
};

/// Answers what `ISFCElement` asks for the concrete `Class`.
template <class Class>
class SFCElement : public describe::Described<Class, ISFCElement> {
 public:
  bool IsSFCStep() const final { return std::is_same_v<Class, SFCStep>; }
  bool IsSFCTransition() const final { return std::is_same_v<Class, SFCTransition>; }
  bool IsSFCSubSequence() const final { return std::is_same_v<Class, SFCSubSequence>; }
  bool IsSFCSelection() const final { return std::is_same_v<Class, SFCSelection>; }
  bool IsSFCSimultaneous() const final { return std::is_same_v<Class, SFCSimultaneous>; }
};

extern template const describe::ClassDescription& describe::Describe<ISFCElement>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SFC_ELEMENT_H_
