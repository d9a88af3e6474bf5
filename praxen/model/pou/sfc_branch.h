// SFCBranch, one of the sequences of a branching, and the list of them.
#ifndef PRAXEN_MODEL_POU_SFC_BRANCH_H_
#define PRAXEN_MODEL_POU_SFC_BRANCH_H_

#include "praxen/model/pou/sfc_elements.h"

namespace praxen {

class SFCBranch final : public describe::Described<SFCBranch> {
 public:
  SFCPriorityValue SFCPriority = pxSFCPriorityDefault;
  Ref<praxen::SFCElements> SFCElements = New<praxen::SFCElements>();

  static constexpr std::string_view kHelp = "One of the sequences of a branching.";
  static describe::Members members() {
    using namespace describe;
    return {property<&SFCBranch::SFCPriority>("Priority among the branches of a selection."),
            property<&SFCBranch::SFCElements>("The sequence.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {optional<&SFCBranch::SFCPriority>()},
            .children = {items<&SFCBranch::SFCElements>()}};
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

extern template const describe::ClassDescription& describe::Describe<SFCBranch>();
extern template const describe::ClassDescription& describe::Describe<SFCBranches>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SFC_BRANCH_H_
