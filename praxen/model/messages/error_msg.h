// ErrorMsg, an error that the engineering tool reports.
#ifndef PRAXEN_MODEL_MESSAGES_ERROR_MSG_H_
#define PRAXEN_MODEL_MESSAGES_ERROR_MSG_H_

#include "praxen/model/messages/i_msg.h"

namespace praxen {

class ErrorMsg final : public NumberedMsg<ErrorMsg> {
 public:
  int32_t ErrorNo = 0;

  static constexpr std::string_view kHelp = "An error that the engineering tool reports.";
  static constexpr const char16_t* kElement = u"Error";
  static describe::Members members() {
    using namespace describe;
    return numbered<&ErrorMsg::ErrorNo>("Number of the error.");
  }
  static describe::Layout layout() {
    using namespace describe;
    return numbered<&ErrorMsg::ErrorNo>();
  }
};

extern template const describe::ClassDescription& describe::Describe<ErrorMsg>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_MESSAGES_ERROR_MSG_H_
