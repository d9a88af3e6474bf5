// ConnectedItem and ConnectedItems, the bases of what an application is connected to.
#ifndef PRAXEN_MODEL_APPLICATION_CONNECTED_ITEM_H_
#define PRAXEN_MODEL_APPLICATION_CONNECTED_ITEM_H_

#include "praxen/model/collection.h"

namespace praxen {

/// A reference to an application or a library of a certain version.
template <class Class>
class ConnectedItem : public describe::Described<Class> {
 public:
  Text Name;
  int32_t MajorVersion = 1, MinorVersion = 0, Revision = 0;
  ReadOnly<Text> Guid;

  static describe::Members members() {
    using namespace describe;
    return {property<&ConnectedItem::Name>("Name; required for writing."),
            property<&ConnectedItem::MajorVersion>("First part of the version."),
            property<&ConnectedItem::MinorVersion>("Second part of the version."),
            property<&ConnectedItem::Revision>("Third part of the version."),
            property<&ConnectedItem::Guid>("GUID, as the engineering tool found it.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&ConnectedItem::Name>(), always<&ConnectedItem::MajorVersion>(),
                           always<&ConnectedItem::MinorVersion>(),
                           always<&ConnectedItem::Revision>(), readOnly<&ConnectedItem::Guid>()}};
  }
  using Form = describe::Creation<Class, &ConnectedItem::Name>;
  using LongForm = describe::Extended<Form, &ConnectedItem::MajorVersion,
                                      &ConnectedItem::MinorVersion, &ConnectedItem::Revision>;
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

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_CONNECTED_ITEM_H_
