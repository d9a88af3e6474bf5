// SFCSubSequence, a named part of a sequential function chart.
#ifndef PRAXEN_MODEL_POU_SFC_SUB_SEQUENCE_H_
#define PRAXEN_MODEL_POU_SFC_SUB_SEQUENCE_H_

#include "praxen/model/pou/sfc_elements.h"

namespace praxen {

class SFCSubSequence final : public SFCElement<SFCSubSequence> {
 public:
  Text SubSeqName;
  Ref<praxen::SFCElements> SFCElements = New<praxen::SFCElements>();

  static constexpr std::string_view kHelp = "A named part of a sequential function chart.";
  static describe::Members members() {
    using namespace describe;
    return {property<&SFCSubSequence::SubSeqName>("Name of the subsequence."),
            property<&SFCSubSequence::SFCElements>("The sequence.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {optional<&SFCSubSequence::SubSeqName>()},
            .children = {items<&SFCSubSequence::SFCElements>()}};
  }

  /// Creates a subsequence; the argument is published as `Name`.
  struct Form : describe::Creation<SFCSubSequence, &SFCSubSequence::SubSeqName> {
    static std::vector<std::string_view> ParameterNames() { return {"Name"}; }
  };
};

extern template const describe::ClassDescription& describe::Describe<SFCSubSequence>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SFC_SUB_SEQUENCE_H_
