// What an application is connected to: ConnectedApplication, ConnectedHWLibrary and
// ConnectedLibrary, with their lists.
#ifndef PRAXEN_MODEL_APPLICATION_CONNECTED_ITEM_H_
#define PRAXEN_MODEL_APPLICATION_CONNECTED_ITEM_H_

#include "praxen/model/collection.h"

namespace praxen::detail {

/// A reference to an application or a library of a certain version.
template <class Class>
class ConnectedItem : public Described<Class> {
 public:
  using T = ConnectedItem;

  Text Name;
  int32_t MajorVersion = 1, MinorVersion = 0, Revision = 0;
  ReadOnly<Text> Guid;

  static describe::Members members() {
    using namespace describe;
    return {property<&T::Name>("Name."), property<&T::MajorVersion>("First part of the version."),
            property<&T::MinorVersion>("Second part of the version."),
            property<&T::Revision>("Third part of the version."), property<&T::Guid>("GUID.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), always<&T::MajorVersion>(),
                           always<&T::MinorVersion>(), always<&T::Revision>(),
                           readOnly<&T::Guid>()}};
  }
  using Form = describe::Creation<Class, &T::Name>;
  using LongForm = describe::Extended<Form, &T::MajorVersion, &T::MinorVersion, &T::Revision>;
};

template <class Class, class Item>
class ConnectedItems : public Collection<Class, Item, SerializableObject> {
  using List = Collection<Class, Item, SerializableObject>;

 public:
  static constexpr std::string_view kArgument = "x";
  static describe::Members members() {
    using namespace describe;
    return Members{serialize()} + List::members();
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.elements = {choice<Item>()}, .container = Container::Always};
  }
};

}  // namespace praxen::detail

namespace praxen {

class ConnectedApplication final : public detail::ConnectedItem<ConnectedApplication> {
 public:
  static constexpr std::string_view kHelp = "An application that another is connected to.";
};

class ConnectedApplications final
    : public detail::ConnectedItems<ConnectedApplications, ConnectedApplication> {
 public:
  static constexpr std::string_view kHelp =
      "The applications that an application is connected to, in order.";
};

class ConnectedHWLibrary final : public detail::ConnectedItem<ConnectedHWLibrary> {
 public:
  static constexpr std::string_view kHelp =
      "A hardware library that an application is connected to.";
  static constexpr const char16_t* kElement = u"ConnectedHardwareLibrary";
};

class ConnectedHWLibraries final
    : public detail::ConnectedItems<ConnectedHWLibraries, ConnectedHWLibrary> {
 public:
  static constexpr std::string_view kHelp =
      "The hardware libraries that an application is connected to, in order.";
  static constexpr const char16_t* kElement = u"ConnectedHardwareLibraries";
};

class ConnectedLibrary final : public detail::ConnectedItem<ConnectedLibrary> {
 public:
  static constexpr std::string_view kHelp = "A library that an application is connected to.";
};

class ConnectedLibraries final
    : public detail::ConnectedItems<ConnectedLibraries, ConnectedLibrary> {
 public:
  static constexpr std::string_view kHelp =
      "The libraries that an application is connected to, in order.";
};

extern template struct describe::Published<ConnectedApplication>;
extern template struct describe::Published<ConnectedApplications>;
extern template struct describe::Published<ConnectedHWLibrary>;
extern template struct describe::Published<ConnectedHWLibraries>;
extern template struct describe::Published<ConnectedLibrary>;
extern template struct describe::Published<ConnectedLibraries>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_CONNECTED_ITEM_H_
