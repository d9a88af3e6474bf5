// SFCBranching, the base of the two elements that branch a sequence.
#ifndef PRAXEN_MODEL_POU_SFC_BRANCHING_H_
#define PRAXEN_MODEL_POU_SFC_BRANCHING_H_

#include "praxen/model/pou/sfc_branch.h"

namespace praxen {

template <class Class>
class SFCBranching : public SFCElement<Class> {
 public:
  Ref<praxen::SFCBranches> SFCBranches = New<praxen::SFCBranches>();

  static describe::Members members() {
    using namespace describe;
    return {property<&SFCBranching::SFCBranches>("The branches.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.children = {items<&SFCBranching::SFCBranches>()}};
  }

  /// Creates the element with a number of empty branches, none when the number is below 1.
  struct Form {
    using Created = Class;
    static constexpr uint32_t kByReference = 0;

    Ref<Class> operator()(int32_t NrOfBranches) const {
      const Ref<Class> object = New<Class>();
      for (int32_t i = 0; i < NrOfBranches; ++i) object->SFCBranches->AddBranch();
      return object;
    }
    static std::vector<std::string_view> ParameterNames() { return {"NrOfBranches"}; }
    static std::string_view Help() { return "Creates an object with that many empty branches."; }
  };
};

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SFC_BRANCHING_H_
