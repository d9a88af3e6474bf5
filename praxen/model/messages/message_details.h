// What messages carry: PosInfo, where in the project one points, and ExtraInfo.
#ifndef PRAXEN_MODEL_MESSAGES_MESSAGE_DETAILS_H_
#define PRAXEN_MODEL_MESSAGES_MESSAGE_DETAILS_H_

#include "praxen/core/enumerations.h"
#include "praxen/describe/description.h"

namespace praxen {

class PosInfo final : public describe::Described<PosInfo> {
 public:
  int32_t Row = 0;
  int32_t Col = 0;
  int32_t StartPos = 0;
  int32_t EndPos = 0;
  Text ElementName;
  Text FOUName;
  Text POUName;
  Text TabName;
  MessageTypeValue MessageType = pxUndefPOUMsg;
  int32_t PageNo = 0;
  Text Id;

  static constexpr std::string_view kHelp = "Where in the project a message points.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::Row>("Row in the code, as the engineering tool counts."),
        property<&T::Col>("Column in the code, as the engineering tool counts."),
        property<&T::StartPos>("Where the place begins, as the engineering tool counts."),
        property<&T::EndPos>("Where the place ends, as the engineering tool counts."),
        property<&T::ElementName>("Name of the element."),
        property<&T::FOUName>("Name of the functional unit."),
        property<&T::POUName>("Name of the program organisation unit."),
        property<&T::TabName>("Name of the tab, such as that of a code block."),
        property<&T::MessageType>("Kind of project object that the message concerns."),
        property<&T::PageNo>("Number of the page."),
        property<&T::Id>("Identifier of the object."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&T::Row>(), always<&T::Col>(), always<&T::StartPos>(),
                           always<&T::EndPos>(), always<&T::ElementName>(), always<&T::FOUName>(),
                           always<&T::POUName>(), always<&T::TabName>(), always<&T::MessageType>(),
                           always<&T::PageNo>(), always<&T::Id>()}};
  }
};

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
        property<&T::JumpDest>("Destination of a jump."),
        property<&T::VarName>("Name of a variable."),
        property<&T::FunctionName>("Name of a function."),
        property<&T::ExpectedType>("Data type that was expected."),
        property<&T::TraverseNo>("Number of the traversal."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&T::JumpDest>(), always<&T::VarName>(),
                           always<&T::FunctionName>(), always<&T::ExpectedType>(),
                           always<&T::TraverseNo>()}};
  }
};

extern template struct describe::Published<PosInfo>;
extern template struct describe::Published<ExtraInfo>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_MESSAGES_MESSAGE_DETAILS_H_
