// The typed additions to a sequence, and the descriptions of the elements of a chart.
#include "praxen/model/pou/sfc_elements.h"

#include "praxen/describe/define.h"
#include "praxen/model/pou/sfc_code_block.h"
#include "praxen/model/pou/sfc_selection.h"
#include "praxen/model/pou/sfc_simultaneous.h"
#include "praxen/model/pou/sfc_step.h"
#include "praxen/model/pou/sfc_sub_sequence.h"
#include "praxen/model/pou/sfc_transition.h"

namespace praxen {

using namespace detail;

namespace {

template <class Form, class... Arguments>
Ref<typename Form::Created> Create(SFCElements& list, const Arguments&... arguments) {
  const Ref<typename Form::Created> element = Form()(arguments...);
  list.Add(element);
  return element;
}

template <auto Add>
Member Adding(std::string_view argument) {
  return method<Add>("Appends the element.", {argument});
}
template <auto Add, class Form>
Member Creating() {
  return method<Add>("Creates an element with the given values and appends it.",
                     Form::ParameterNames());
}

}  // namespace

void SFCElements::AddStep(const Ref<SFCStep>& step) { Add(step); }
Ref<SFCStep> SFCElements::AddStep1(const Text& Name) { return Create<SFCStep::Form>(*this, Name); }
Ref<SFCStep> SFCElements::AddStep2(const Text& Name, bool InitialStep, const Text& P1_Action_STCode,
                                   const Text& N_Action_STCode, const Text& P0_Action_STCode) {
  return Create<SFCStep::LongForm>(*this, Name, InitialStep, P1_Action_STCode, N_Action_STCode,
                                   P0_Action_STCode);
}

void SFCElements::AddTransition(const Ref<SFCTransition>& trans) { Add(trans); }
Ref<SFCTransition> SFCElements::AddTransition1(const Text& Name) {
  return Create<SFCTransition::Form>(*this, Name);
}
Ref<SFCTransition> SFCElements::AddTransition2(const Text& Name, const Text& Transition_STCode,
                                               const Text& Dest) {
  return Create<SFCTransition::LongForm>(*this, Name, Transition_STCode, Dest);
}

void SFCElements::AddSelection(const Ref<SFCSelection>& sel) { Add(sel); }
Ref<SFCSelection> SFCElements::AddSelection1(int32_t NrOfBranches) {
  return Create<SFCSelection::Form>(*this, NrOfBranches);
}

void SFCElements::AddSimultaneous(const Ref<SFCSimultaneous>& sim) { Add(sim); }
Ref<SFCSimultaneous> SFCElements::AddSimultaneous1(int32_t NrOfBranches) {
  return Create<SFCSimultaneous::Form>(*this, NrOfBranches);
}

void SFCElements::AddSubSequence(const Ref<SFCSubSequence>& subseq) { Add(subseq); }
Ref<SFCSubSequence> SFCElements::AddSubSequence1(const Text& Name) {
  return Create<SFCSubSequence::Form>(*this, Name);
}

Members SFCElements::members() {
  return Members{Adding<&SFCElements::AddStep>("step"),
                 Creating<&SFCElements::AddStep1, SFCStep::Form>(),
                 Creating<&SFCElements::AddStep2, SFCStep::LongForm>(),
                 Adding<&SFCElements::AddTransition>("trans"),
                 Creating<&SFCElements::AddTransition1, SFCTransition::Form>(),
                 Creating<&SFCElements::AddTransition2, SFCTransition::LongForm>(),
                 Adding<&SFCElements::AddSelection>("sel"),
                 Creating<&SFCElements::AddSelection1, SFCSelection::Form>(),
                 Adding<&SFCElements::AddSimultaneous>("sim"),
                 Creating<&SFCElements::AddSimultaneous1, SFCSimultaneous::Form>(),
                 Adding<&SFCElements::AddSubSequence>("subseq"),
                 Creating<&SFCElements::AddSubSequence1, SFCSubSequence::Form>()} +
         additions() + positions();
}

Layout SFCElements::layout() {
  return {.elements = {choice<SFCStep, ISFCElement, &ISFCElement::IsSFCStep>(),
                       choice<SFCTransition, ISFCElement, &ISFCElement::IsSFCTransition>(),
                       choice<SFCSelection, ISFCElement, &ISFCElement::IsSFCSelection>(),
                       choice<SFCSimultaneous, ISFCElement, &ISFCElement::IsSFCSimultaneous>(),
                       choice<SFCSubSequence, ISFCElement, &ISFCElement::IsSFCSubSequence>()},
          .container = Container::None};
}

template const ClassDescription& describe::Describe<ISFCElement>();
template const ClassDescription& describe::Describe<SFCElements>();
template const ClassDescription& describe::Describe<SFCStep>();
template const ClassDescription& describe::Describe<SFCTransition>();
template const ClassDescription& describe::Describe<SFCSelection>();
template const ClassDescription& describe::Describe<SFCSimultaneous>();
template const ClassDescription& describe::Describe<SFCSubSequence>();
template const ClassDescription& describe::Describe<SFCCodeBlock>();

}  // namespace praxen
