// SFCSimultaneous, a parallel branching of a sequential function chart.
#ifndef PRAXEN_MODEL_POU_SFC_SIMULTANEOUS_H_
#define PRAXEN_MODEL_POU_SFC_SIMULTANEOUS_H_

#include "praxen/model/pou/sfc_branching.h"

namespace praxen {

class SFCSimultaneous final : public SFCBranching<SFCSimultaneous> {
 public:
  static constexpr std::string_view kHelp = "A parallel branching of a sequential function chart.";
};

extern template const describe::ClassDescription& describe::Describe<SFCSimultaneous>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SFC_SIMULTANEOUS_H_
