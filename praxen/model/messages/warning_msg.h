// WarningMsg, a warning that the engineering tool reports.
#ifndef PRAXEN_MODEL_MESSAGES_WARNING_MSG_H_
#define PRAXEN_MODEL_MESSAGES_WARNING_MSG_H_

#include "praxen/model/messages/i_msg.h"

namespace praxen {

class WarningMsg final : public NumberedMsg<WarningMsg> {
 public:
  int32_t WarningNo = 0;

  static constexpr std::string_view kHelp = "A warning that the engineering tool reports.";
  static constexpr const char16_t* kElement = u"Warning";
  static describe::Members members() {
    using namespace describe;
    return numbered<&WarningMsg::WarningNo>("Number of the warning.");
  }
  static describe::Layout layout() {
    using namespace describe;
    return numbered<&WarningMsg::WarningNo>();
  }
};

extern template const describe::ClassDescription& describe::Describe<WarningMsg>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_MESSAGES_WARNING_MSG_H_
