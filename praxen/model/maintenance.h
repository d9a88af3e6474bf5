// maintenance, through which clients see and set the state of the library.
#ifndef PRAXEN_MODEL_MAINTENANCE_H_
#define PRAXEN_MODEL_MAINTENANCE_H_

#include "praxen/describe/description.h"

namespace praxen {

// The class is published with a lower-case name.
class maintenance final : public describe::Described<maintenance> {
 public:
  int32_t NrOfObjects() const;
  bool GetIncludeCRLFInXML() const;
  void SetIncludeCRLFInXML(const bool& include);

  static constexpr std::string_view kHelp = "The state of the whole library.";
  static describe::Members members() {
    using namespace describe;
    return {computed<&T::NrOfObjects>(
                "Number of live objects of the library, its shared writer and factory and this "
                "object included."),
            accessors<&T::GetIncludeCRLFInXML, &T::SetIncludeCRLFInXML>(
                "IncludeCRLFInXML", "Whether documents are written with line breaks.")};
  }
};

extern template struct describe::Published<maintenance>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_MAINTENANCE_H_
