// The messages ErrorMsg, WarningMsg, InfoMsg and FindMsg, and their kind IMsg.
#ifndef PRAXEN_MODEL_MESSAGES_MESSAGE_H_
#define PRAXEN_MODEL_MESSAGES_MESSAGE_H_

#include "praxen/describe/kind.h"
#include "praxen/model/messages/message_details.h"

namespace praxen {

class ErrorMsg;
class WarningMsg;
class InfoMsg;
class FindMsg;

/// A message of the engineering tool. On its own it has no text and is of no class.
class IMsg : public describe::KindBase<IMsg> {
 public:
  virtual Text Message() const { return GetText(); }
  virtual void SetMessage(const Text& message) { SetText(message); }
  virtual bool IsErrorMsg() const { return Answer<&T::IsErrorMsg>(); }
  virtual bool IsWarningMsg() const { return Answer<&T::IsWarningMsg>(); }
  virtual bool IsInfoMsg() const { return Answer<&T::IsInfoMsg>(); }
  virtual bool IsFindMsg() const { return Answer<&T::IsFindMsg>(); }

  using Classes = describe::KindClasses<
      describe::Asked<ErrorMsg, &T::IsErrorMsg>, describe::Asked<WarningMsg, &T::IsWarningMsg>,
      describe::Asked<InfoMsg, &T::IsInfoMsg>, describe::Asked<FindMsg, &T::IsFindMsg>>;
  static auto& kindText(auto& object) { return object.Message; }

  static constexpr std::string_view kHelp = "A message of the engineering tool.";
  static describe::Members members() {
    using namespace describe;
    return Members{accessors<&T::Message, &T::SetMessage>("Message", "Text of the message.")} +
           Classes::questions();
  }

 protected:
  using KindBase::KindBase;
  IMsg() = default;
};

}  // namespace praxen

namespace praxen::detail {

/// A message that points to a place in the project.
template <class Class>
class PlacedMsg : public Described<Class, IMsg> {
 public:
  using T = PlacedMsg;

  Text Message;
  Ref<praxen::PosInfo> PosInfo;

  static describe::Members members() {
    using namespace describe;
    return {property<&T::Message>("Text of the message."),
            property<&T::PosInfo>("Where in the project the message points.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&T::Message>()}, .children = {object<&T::PosInfo>()}};
  }
};

/// A message that carries additional data.
template <class Class>
class DetailedMsg : public PlacedMsg<Class> {
 public:
  using T = DetailedMsg;

  Ref<praxen::ExtraInfo> ExtraInfo;

  static describe::Members members() {
    using namespace describe;
    return PlacedMsg<Class>::members() + Members{property<&T::ExtraInfo>("Additional data.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    describe::Layout layout = PlacedMsg<Class>::layout();
    layout.children.push_back(object<&T::ExtraInfo>());
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

}  // namespace praxen::detail

namespace praxen {

class ErrorMsg final : public detail::NumberedMsg<ErrorMsg> {
 public:
  using T = ErrorMsg;

  int32_t ErrorNo = 0;

  static constexpr std::string_view kHelp = "An error that the engineering tool reports.";
  static constexpr const char16_t* kElement = u"Error";
  static describe::Members members() {
    using namespace describe;
    return numbered<&T::ErrorNo>("Number of the error.");
  }
  static describe::Layout layout() {
    using namespace describe;
    return numbered<&T::ErrorNo>();
  }
};

class WarningMsg final : public detail::NumberedMsg<WarningMsg> {
 public:
  using T = WarningMsg;

  int32_t WarningNo = 0;

  static constexpr std::string_view kHelp = "A warning that the engineering tool reports.";
  static constexpr const char16_t* kElement = u"Warning";
  static describe::Members members() {
    using namespace describe;
    return numbered<&T::WarningNo>("Number of the warning.");
  }
  static describe::Layout layout() {
    using namespace describe;
    return numbered<&T::WarningNo>();
  }
};

class InfoMsg final : public detail::DetailedMsg<InfoMsg> {
 public:
  static constexpr std::string_view kHelp = "Information that the engineering tool reports.";
  static constexpr const char16_t* kElement = u"Info";
};

class FindMsg final : public detail::PlacedMsg<FindMsg> {
 public:
  static constexpr std::string_view kHelp =
      "A result of a search that the engineering tool reports.";
  static constexpr const char16_t* kElement = u"Find";
};

extern template struct describe::Published<IMsg>;
extern template struct describe::Published<ErrorMsg>;
extern template struct describe::Published<WarningMsg>;
extern template struct describe::Published<InfoMsg>;
extern template struct describe::Published<FindMsg>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_MESSAGES_MESSAGE_H_
