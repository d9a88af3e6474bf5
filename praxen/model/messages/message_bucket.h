// MessageBucket, the messages of a check, compilation or search, with all classes of messages.
#ifndef PRAXEN_MODEL_MESSAGES_MESSAGE_BUCKET_H_
#define PRAXEN_MODEL_MESSAGES_MESSAGE_BUCKET_H_

#include "praxen/model/collection.h"
#include "praxen/model/messages/error_msg.h"
#include "praxen/model/messages/find_msg.h"
#include "praxen/model/messages/info_msg.h"
#include "praxen/model/messages/warning_msg.h"

namespace praxen {

class MessageBucket final : public Collection<MessageBucket, IMsg, SerializableObject> {
 public:
  /// As the engineering tool or the client says; the messages are not counted.
  int32_t NoOfErrors = 0, NoOfWarnings = 0;

  static constexpr std::string_view kHelp = "The messages of a check, compilation or search.";
  static constexpr std::string_view kArgument = "m";
  static describe::Members members();
  static describe::Layout layout();
};

extern template const describe::ClassDescription& describe::Describe<MessageBucket>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_MESSAGES_MESSAGE_BUCKET_H_
