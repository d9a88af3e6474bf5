// The insertion of branches.
#include "praxen/model/pou/sfc_elements.h"

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
  return Members{add(), addBefore(), method<&T::AddBranch>("Appends a new branch."),
                 method<&T::AddBranchBefore, kNr>(
                     "Inserts a new branch before the one at the position.", {"Nr"}),
                 method<&T::AddBranchAfter, kNr>(
                     "Inserts a new branch after the one at the position.", {"Nr"})} +
         positions();
}

}  // namespace praxen
