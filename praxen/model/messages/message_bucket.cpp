// The members of MessageBucket, and the descriptions of the messages.
#include "praxen/model/messages/message_bucket.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

Members MessageBucket::members() {
  return Members{property<&MessageBucket::NoOfErrors>("Number of errors, as reported."),
                 property<&MessageBucket::NoOfWarnings>("Number of warnings, as reported."),
                 serialize(), add()} +
         positions();
}

Layout MessageBucket::layout() {
  return {
      .attributes = {always<&MessageBucket::NoOfErrors>(), always<&MessageBucket::NoOfWarnings>()},
      .elements = {choice<ErrorMsg, IMsg, &IMsg::IsErrorMsg>(),
                   choice<WarningMsg, IMsg, &IMsg::IsWarningMsg>(),
                   choice<InfoMsg, IMsg, &IMsg::IsInfoMsg>(),
                   choice<FindMsg, IMsg, &IMsg::IsFindMsg>()},
      .container = Container::Always};
}

template const ClassDescription& describe::Describe<IMsg>();
template const ClassDescription& describe::Describe<ErrorMsg>();
template const ClassDescription& describe::Describe<WarningMsg>();
template const ClassDescription& describe::Describe<InfoMsg>();
template const ClassDescription& describe::Describe<FindMsg>();
template const ClassDescription& describe::Describe<PosInfo>();
template const ClassDescription& describe::Describe<ExtraInfo>();
template const ClassDescription& describe::Describe<MessageBucket>();

}  // namespace praxen
