// IMsg, the kind of all messages, and the base that the message classes share.
#ifndef PRAXEN_MODEL_MESSAGES_I_MSG_H_
#define PRAXEN_MODEL_MESSAGES_I_MSG_H_

#include <type_traits>

#include "praxen/describe/kind.h"
#include "praxen/model/messages/extra_info.h"
#include "praxen/model/messages/pos_info.h"

namespace praxen {

class ErrorMsg;
class WarningMsg;
class InfoMsg;
class FindMsg;

/// A message of the engineering tool. On its own it has no text and is of no class.
class IMsg : public describe::KindBase<IMsg> {
 public:
  virtual Text Message() const { return {}; }
  virtual void SetMessage(const Text&) {}
  virtual bool IsErrorMsg() const { return false; }
  virtual bool IsWarningMsg() const { return false; }
  virtual bool IsInfoMsg() const { return false; }
  virtual bool IsFindMsg() const { return false; }

  /// Holds a message that is implemented outside the library.
  static Ref<Object> Adapt(detail::Interface* foreign);

  static constexpr std::string_view kHelp = "A message of the engineering tool.";
  static describe::Members members() {
    using namespace describe;
    return {
        accessors<&IMsg::Message, &IMsg::SetMessage>("Message", "Text of the message."),
        computed<&IMsg::IsErrorMsg>("Whether it is an ErrorMsg."),
        computed<&IMsg::IsWarningMsg>("Whether it is a WarningMsg."),
        computed<&IMsg::IsInfoMsg>("Whether it is an InfoMsg."),
        computed<&IMsg::IsFindMsg>("Whether it is a FindMsg."),
    };
  }

 protected:
  using KindBase::KindBase;
  IMsg() = default;
};

/// Answers what `IMsg` asks for the concrete `Class`.
template <class Class>
class Msg : public describe::Described<Class, IMsg> {
 public:
  Text Message() const final { return static_cast<const Class&>(*this).Message; }
  void SetMessage(const Text& message) final { static_cast<Class&>(*this).Message = message; }
  bool IsErrorMsg() const final { return std::is_same_v<Class, ErrorMsg>; }
  bool IsWarningMsg() const final { return std::is_same_v<Class, WarningMsg>; }
  bool IsInfoMsg() const final { return std::is_same_v<Class, InfoMsg>; }
  bool IsFindMsg() const final { return std::is_same_v<Class, FindMsg>; }
};

/// A message that points to a place in the project.
template <class Class>
class PlacedMsg : public Msg<Class> {
 public:
  Text Message;
  Ref<praxen::PosInfo> PosInfo;

  static describe::Members members() {
    using namespace describe;
    return {property<&PlacedMsg::Message>("Text of the message."),
            property<&PlacedMsg::PosInfo>("Where in the project the message points.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&PlacedMsg::Message>()},
            .children = {object<&PlacedMsg::PosInfo>()}};
  }
};

/// A message that carries additional data.
template <class Class>
class DetailedMsg : public PlacedMsg<Class> {
 public:
  Ref<praxen::ExtraInfo> ExtraInfo;

  static describe::Members members() {
    using namespace describe;
    return PlacedMsg<Class>::members() +
           Members{property<&DetailedMsg::ExtraInfo>("Additional data.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    describe::Layout layout = PlacedMsg<Class>::layout();
    layout.children.push_back(object<&DetailedMsg::ExtraInfo>());
    return layout;
  }
};

/// A message with a number of its own, which `Number` points to.
template <class Class>
class NumberedMsg : public DetailedMsg<Class> {
 protected:
  template <auto Number>
  static describe::Members numbered(std::string_view help) {
    using namespace describe;
    return Members{property<Number>(help)} + DetailedMsg<Class>::members();
  }
  template <auto Number>
  static describe::Layout numbered() {
    using namespace describe;
    describe::Layout layout = DetailedMsg<Class>::layout();
    layout.attributes.insert(layout.attributes.begin(), always<Number>());
    return layout;
  }
};

extern template const describe::ClassDescription& describe::Describe<IMsg>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_MESSAGES_I_MSG_H_
