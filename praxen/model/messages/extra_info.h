// ExtraInfo, additional data of a message.
#ifndef PRAXEN_MODEL_MESSAGES_EXTRA_INFO_H_
#define PRAXEN_MODEL_MESSAGES_EXTRA_INFO_H_

#include "praxen/core/enumerations.h"
#include "praxen/describe/description.h"

namespace praxen {

class ExtraInfo final : public describe::Described<ExtraInfo> {
 public:
  Text JumpDest;
  Text VarName;
  Text FunctionName;
  Text ExpectedType;
  int32_t TraverseNo = 0;

  static constexpr std::string_view kHelp = "Additional data of a message.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&ExtraInfo::JumpDest>("Destination of a jump."),
        property<&ExtraInfo::VarName>("Name of a variable."),
        property<&ExtraInfo::FunctionName>("Name of a function."),
        property<&ExtraInfo::ExpectedType>("Data type that was expected."),
        property<&ExtraInfo::TraverseNo>("Number of the traversal."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&ExtraInfo::JumpDest>(), always<&ExtraInfo::VarName>(),
                           always<&ExtraInfo::FunctionName>(), always<&ExtraInfo::ExpectedType>(),
                           always<&ExtraInfo::TraverseNo>()}};
  }
};

extern template const describe::ClassDescription& describe::Describe<ExtraInfo>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_MESSAGES_EXTRA_INFO_H_
