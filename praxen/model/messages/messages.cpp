// The list of the classes of messages.
#include "praxen/describe/define.h"
#include "praxen/model/messages/message.h"
#include "praxen/model/messages/message_bucket.h"
#include "praxen/model/messages/message_details.h"

namespace praxen {

template struct describe::Published<ErrorMsg>;
template struct describe::Published<ExtraInfo>;
template struct describe::Published<FindMsg>;
template struct describe::Published<IMsg>;
template struct describe::Published<InfoMsg>;
template struct describe::Published<MessageBucket>;
template struct describe::Published<PosInfo>;
template struct describe::Published<WarningMsg>;

}  // namespace praxen
