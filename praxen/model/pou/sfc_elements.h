// SFCElements, a sequence of a sequential function chart, and the elements that hold sequences:
// SFCSubSequence, and SFCSelection and SFCSimultaneous with their branches.
#ifndef PRAXEN_MODEL_POU_SFC_ELEMENTS_H_
#define PRAXEN_MODEL_POU_SFC_ELEMENTS_H_

#include "praxen/model/collection.h"
#include "praxen/model/pou/sfc_element.h"

namespace praxen {

class SFCElements;

class SFCBranch final : public describe::Described<SFCBranch> {
 public:
  SFCPriorityValue SFCPriority = pxSFCPriorityDefault;
  Ref<praxen::SFCElements> SFCElements = New<praxen::SFCElements>();

  static constexpr std::string_view kHelp = "One of the sequences of a branching.";
  static describe::Members members() {
    using namespace describe;
    return {property<&T::SFCPriority>("Priority among the branches of a selection."),
            property<&T::SFCElements>("The sequence.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {optional<&T::SFCPriority>()}, .children = {items<&T::SFCElements>()}};
  }
};

class SFCBranches final : public Collection<SFCBranches, SFCBranch> {
 public:
  /// Appends a new branch.
  Ref<SFCBranch> AddBranch();
  /// Inserts a new branch before the one at `Nr`; raises `SubscriptOutOfRange` when there is none.
  Ref<SFCBranch> AddBranchBefore(int32_t Nr);
  /// Inserts a new branch after the one at `Nr`; raises `SubscriptOutOfRange` when there is none.
  Ref<SFCBranch> AddBranchAfter(int32_t Nr);

  static constexpr std::string_view kHelp = "The branches of a branching, in order.";
  static constexpr std::string_view kArgument = "br";
  static describe::Members members();
  static describe::Layout layout() {
    using namespace describe;
    return {.elements = {choice<SFCBranch>()}, .container = Container::None};
  }
};

}  // namespace praxen

namespace praxen::detail {

/// An element that branches a sequence.
template <class Class>
class SFCBranching : public Described<Class, ISFCElement> {
 public:
  using T = SFCBranching;

  /// How many branches one call creates at most.
  static constexpr int32_t kMostBranches = 1'000'000;

  Ref<praxen::SFCBranches> SFCBranches = New<praxen::SFCBranches>();

  static describe::Members members() {
    using namespace describe;
    return {property<&T::SFCBranches>("The branches.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.children = {items<&T::SFCBranches>()}};
  }

  /// Creates the element with a number of empty branches, none when the number is below 1; raises
  /// `Overflow` when it is above `kMostBranches`.
  struct Form {
    using Created = Class;
    static constexpr uint32_t kByReference = 0;

    Ref<Class> operator()(int32_t NrOfBranches) const {
      if (NrOfBranches > kMostBranches) throw Overflow();
      const Ref<Class> object = New<Class>();
      for (int32_t i = 0; i < NrOfBranches; ++i) object->SFCBranches->AddBranch();
      return object;
    }
    static std::vector<std::string_view> ParameterNames() { return {"NrOfBranches"}; }
    static std::string_view Help() { return "Creates an object with that many empty branches."; }
  };
};

}  // namespace praxen::detail

namespace praxen {

class SFCSelection final : public detail::SFCBranching<SFCSelection> {
 public:
  static constexpr std::string_view kHelp =
      "An alternative branching of a sequential function chart.";
};

class SFCSimultaneous final : public detail::SFCBranching<SFCSimultaneous> {
 public:
  static constexpr std::string_view kHelp = "A parallel branching of a sequential function chart.";
};

class SFCSubSequence final : public describe::Described<SFCSubSequence, ISFCElement> {
 public:
  Text SubSeqName;
  Ref<praxen::SFCElements> SFCElements = New<praxen::SFCElements>();

  static constexpr std::string_view kHelp = "A named part of a sequential function chart.";
  static describe::Members members() {
    using namespace describe;
    return {property<&T::SubSeqName>("Name of the subsequence."),
            property<&T::SFCElements>("The sequence.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {optional<&T::SubSeqName>()}, .children = {items<&T::SFCElements>()}};
  }

  /// Creates a subsequence; the argument is published as `Name`.
  struct Form : describe::Creation<T, &T::SubSeqName> {
    static std::vector<std::string_view> ParameterNames() { return {"Name"}; }
  };
};

/// Steps, transitions, branchings and subsequences in any order: the structure is not checked.
class SFCElements final : public Collection<SFCElements, ISFCElement> {
 public:
  void AddStep(const Ref<SFCStep>& step) { Add(step); }
  Ref<SFCStep> AddStep1(const auto&... arguments) { return Create<SFCStep::Form>(arguments...); }
  Ref<SFCStep> AddStep2(const auto&... arguments) {
    return Create<SFCStep::LongForm>(arguments...);
  }
  void AddTransition(const Ref<SFCTransition>& trans) { Add(trans); }
  Ref<SFCTransition> AddTransition1(const auto&... arguments) {
    return Create<SFCTransition::Form>(arguments...);
  }
  Ref<SFCTransition> AddTransition2(const auto&... arguments) {
    return Create<SFCTransition::LongForm>(arguments...);
  }
  void AddSelection(const Ref<SFCSelection>& sel) { Add(sel); }
  /// Appends a selection with that many empty branches, none when the number is below 1.
  Ref<SFCSelection> AddSelection1(const auto&... arguments) {
    return Create<SFCSelection::Form>(arguments...);
  }
  void AddSimultaneous(const Ref<SFCSimultaneous>& sim) { Add(sim); }
  /// Appends a parallel branching with that many empty branches, none when the number is below 1.
  Ref<SFCSimultaneous> AddSimultaneous1(const auto&... arguments) {
    return Create<SFCSimultaneous::Form>(arguments...);
  }
  void AddSubSequence(const Ref<SFCSubSequence>& subseq) { Add(subseq); }
  Ref<SFCSubSequence> AddSubSequence1(const auto&... arguments) {
    return Create<SFCSubSequence::Form>(arguments...);
  }

  static constexpr std::string_view kHelp = "A sequence of a sequential function chart, in order.";
  static constexpr std::string_view kArgument = "elem";
  static describe::Members members() {
    using namespace describe;
    constexpr std::string_view kAppends = "Appends the element.";
    constexpr std::string_view kCreates =
        "Creates an element with the given values and appends it.";
    return Members{method<&T::AddStep>(kAppends, {"step"}),
                   creation<SFCStep::Form>("AddStep1", kCreates),
                   creation<SFCStep::LongForm>("AddStep2", kCreates),
                   method<&T::AddTransition>(kAppends, {"trans"}),
                   creation<SFCTransition::Form>("AddTransition1", kCreates),
                   creation<SFCTransition::LongForm>("AddTransition2", kCreates),
                   method<&T::AddSelection>(kAppends, {"sel"}),
                   creation<SFCSelection::Form>("AddSelection1", kCreates),
                   method<&T::AddSimultaneous>(kAppends, {"sim"}),
                   creation<SFCSimultaneous::Form>("AddSimultaneous1", kCreates),
                   method<&T::AddSubSequence>(kAppends, {"subseq"}),
                   creation<SFCSubSequence::Form>("AddSubSequence1", kCreates)} +
           additions() + positions();
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.elements = ISFCElement::choices(), .container = Container::None};
  }
};

extern template struct describe::Published<SFCBranch>;
extern template struct describe::Published<SFCBranches>;
extern template struct describe::Published<SFCSelection>;
extern template struct describe::Published<SFCSimultaneous>;
extern template struct describe::Published<SFCSubSequence>;
extern template struct describe::Published<SFCElements>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SFC_ELEMENTS_H_
