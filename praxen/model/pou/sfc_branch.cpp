// The insertion of branches.
#include "praxen/model/pou/sfc_branch.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

Ref<SFCBranch> SFCBranches::AddBranch() {
  const Ref<SFCBranch> branch = New<SFCBranch>();
  Add(branch);
  return branch;
}

Ref<SFCBranch> SFCBranches::AddBranchBefore(int32_t Nr) {
  Item(Nr);  // raises the error of a position that does not exist
  const Ref<SFCBranch> branch = New<SFCBranch>();
  AddBefore(branch, Nr);
  return branch;
}

Ref<SFCBranch> SFCBranches::AddBranchAfter(int32_t Nr) {
  Item(Nr);  // raises the error of a position that does not exist
  const Ref<SFCBranch> branch = New<SFCBranch>();
  AddBefore(branch, Nr + 1);
  return branch;
}

Members SFCBranches::members() {
  // The position is passed by reference.
  constexpr uint32_t kNr = 1;
  return Members{add(), addBefore(), method<&SFCBranches::AddBranch>("Appends a new branch."),
                 method<&SFCBranches::AddBranchBefore, kNr>(
                     "Inserts a new branch before the one at the position.", {"Nr"}),
                 method<&SFCBranches::AddBranchAfter, kNr>(
                     "Inserts a new branch after the one at the position.", {"Nr"})} +
         positions();
}

template const ClassDescription& describe::Describe<SFCBranch>();
template const ClassDescription& describe::Describe<SFCBranches>();

}  // namespace praxen
