// InfoMsg, information that the engineering tool reports.
#ifndef PRAXEN_MODEL_MESSAGES_INFO_MSG_H_
#define PRAXEN_MODEL_MESSAGES_INFO_MSG_H_

#include "praxen/model/messages/i_msg.h"

namespace praxen {

class InfoMsg final : public DetailedMsg<InfoMsg> {
 public:
  static constexpr std::string_view kHelp = "Information that the engineering tool reports.";
  static constexpr const char16_t* kElement = u"Info";
};

extern template const describe::ClassDescription& describe::Describe<InfoMsg>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_MESSAGES_INFO_MSG_H_
