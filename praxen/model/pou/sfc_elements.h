// SFCElements, a sequence of a sequential function chart.
#ifndef PRAXEN_MODEL_POU_SFC_ELEMENTS_H_
#define PRAXEN_MODEL_POU_SFC_ELEMENTS_H_

#include "praxen/model/collection.h"
#include "praxen/model/pou/sfc_element.h"

namespace praxen {

/// Steps, transitions, branchings and subsequences in any order: the structure is not checked.
class SFCElements final : public Collection<SFCElements, ISFCElement> {
 public:
  void AddStep(const Ref<SFCStep>& step);
  Ref<SFCStep> AddStep1(const Text& Name);
  Ref<SFCStep> AddStep2(const Text& Name, bool InitialStep, const Text& P1_Action_STCode,
                        const Text& N_Action_STCode, const Text& P0_Action_STCode);
  void AddTransition(const Ref<SFCTransition>& trans);
  Ref<SFCTransition> AddTransition1(const Text& Name);
  Ref<SFCTransition> AddTransition2(const Text& Name, const Text& Transition_STCode,
                                    const Text& Dest);
  void AddSelection(const Ref<SFCSelection>& sel);
  /// Appends a selection with that many empty branches, none when the number is below 1.
  Ref<SFCSelection> AddSelection1(int32_t NrOfBranches);
  void AddSimultaneous(const Ref<SFCSimultaneous>& sim);
  /// Appends a parallel branching with that many empty branches, none when the number is below 1.
  Ref<SFCSimultaneous> AddSimultaneous1(int32_t NrOfBranches);
  void AddSubSequence(const Ref<SFCSubSequence>& subseq);
  Ref<SFCSubSequence> AddSubSequence1(const Text& Name);

  static constexpr std::string_view kHelp = "A sequence of a sequential function chart, in order.";
  static constexpr std::string_view kArgument = "elem";
  static describe::Members members();
  static describe::Layout layout();
};

extern template const describe::ClassDescription& describe::Describe<SFCElements>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SFC_ELEMENTS_H_
