// MessageBucket, the messages of a check, compilation or search.
#ifndef PRAXEN_MODEL_MESSAGES_MESSAGE_BUCKET_H_
#define PRAXEN_MODEL_MESSAGES_MESSAGE_BUCKET_H_

#include "praxen/model/collection.h"
#include "praxen/model/messages/message.h"

namespace praxen {

class MessageBucket final : public Collection<MessageBucket, IMsg, SerializableObject> {
 public:
  /// As the engineering tool or the client says; the messages are not counted.
  int32_t NoOfErrors = 0, NoOfWarnings = 0;

  static constexpr std::string_view kHelp = "The messages of a check, compilation or search.";
  static constexpr std::string_view kArgument = "m";
  static describe::Members members() {
    using namespace describe;
    return Members{property<&T::NoOfErrors>("Number of errors, as reported."),
                   property<&T::NoOfWarnings>("Number of warnings, as reported."), serialize(),
                   add()} +
           positions();
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&T::NoOfErrors>(), always<&T::NoOfWarnings>()},
            .elements = IMsg::choices(),
            .container = Container::Always};
  }
};

extern template struct describe::Published<MessageBucket>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_MESSAGES_MESSAGE_BUCKET_H_
