// FindMsg, a result of a search that the engineering tool reports.
#ifndef PRAXEN_MODEL_MESSAGES_FIND_MSG_H_
#define PRAXEN_MODEL_MESSAGES_FIND_MSG_H_

#include "praxen/model/messages/i_msg.h"

namespace praxen {

class FindMsg final : public PlacedMsg<FindMsg> {
 public:
  static constexpr std::string_view kHelp =
      "A result of a search that the engineering tool reports.";
  static constexpr const char16_t* kElement = u"Find";
};

extern template const describe::ClassDescription& describe::Describe<FindMsg>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_MESSAGES_FIND_MSG_H_
