// PosInfo, where in the project a message points.
#ifndef PRAXEN_MODEL_MESSAGES_POS_INFO_H_
#define PRAXEN_MODEL_MESSAGES_POS_INFO_H_

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
        property<&PosInfo::Row>("Row in the code."),
        property<&PosInfo::Col>("Column in the code."),
        property<&PosInfo::StartPos>("Where the place begins."),
        property<&PosInfo::EndPos>("Where the place ends."),
        property<&PosInfo::ElementName>("Name of the element."),
        property<&PosInfo::FOUName>("Name of the functional unit."),
        property<&PosInfo::POUName>("Name of the program organisation unit."),
        property<&PosInfo::TabName>("Name of the tab, such as that of a code block."),
        property<&PosInfo::MessageType>("Kind of project object that the message concerns."),
        property<&PosInfo::PageNo>("Number of the page."),
        property<&PosInfo::Id>("Identifier of the object."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&PosInfo::Row>(), always<&PosInfo::Col>(),
                           always<&PosInfo::StartPos>(), always<&PosInfo::EndPos>(),
                           always<&PosInfo::ElementName>(), always<&PosInfo::FOUName>(),
                           always<&PosInfo::POUName>(), always<&PosInfo::TabName>(),
                           always<&PosInfo::MessageType>(), always<&PosInfo::PageNo>(),
                           always<&PosInfo::Id>()}};
  }
};

extern template const describe::ClassDescription& describe::Describe<PosInfo>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_MESSAGES_POS_INFO_H_
