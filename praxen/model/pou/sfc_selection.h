// SFCSelection, an alternative branching of a sequential function chart.
#ifndef PRAXEN_MODEL_POU_SFC_SELECTION_H_
#define PRAXEN_MODEL_POU_SFC_SELECTION_H_

#include "praxen/model/pou/sfc_branching.h"

namespace praxen {

class SFCSelection final : public SFCBranching<SFCSelection> {
 public:
  static constexpr std::string_view kHelp =
      "An alternative branching of a sequential function chart.";
};

extern template const describe::ClassDescription& describe::Describe<SFCSelection>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SFC_SELECTION_H_
