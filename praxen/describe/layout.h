// The XML layout of a class: its element, attributes and children in the order they are written.
#ifndef PRAXEN_DESCRIBE_LAYOUT_H_
#define PRAXEN_DESCRIBE_LAYOUT_H_

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "praxen/core/ascii.h"
#include "praxen/core/entity_name.h"
#include "praxen/describe/object.h"
#include "praxen/describe/slots.h"
#include "praxen/describe/value_type.h"

namespace praxen::detail {

// Declared as in praxen/xml/xml_name.h, which clients do not need.
using XmlName = const std::u16string*;

}  // namespace praxen::detail

namespace praxen::describe {

struct Member;
struct ElementMarkup;
struct TextMarkup;

/// When an attribute is written. All are read.
enum class Rule : uint8_t {
  /// Always; the object cannot be written while it is empty.
  Required,
  Always,
  /// When the value differs from that of a new object.
  Optional,
  UnlessEmpty,
  /// Never; only reading fills it.
  ReadOnly
};

struct Attribute {
  /// Whether an element without it is invalid.
  bool isRequired() const {
    return (rule == Rule::Required || rule == Rule::Always) && !readIfPresent;
  }

  std::u16string name;
  Rule rule = Rule::Always;
  ValueType type;
  void* (*storage)(Object& object) = nullptr;
  /// The data member that holds the value.
  std::string_view property;
  /// Reading leaves the value alone when the attribute is absent.
  bool readIfPresent = false;

  // Filled from a new object before the layout is used.

  /// In bytes from the start of the object.
  std::ptrdiff_t offset = 0;
  XmlName xmlName = nullptr;
  /// Whether the attribute is left out for the value that its absence stands for.
  bool canBeAbsent = false;
  /// The value that absence stands for, as it would be written, and as a number if it is one.
  Text absentText = {};
  int32_t absentNumber = 0;
  /// The published member of the property; null when it is not published.
  const Member* member = nullptr;
};

enum class ChildKind : uint8_t {
  /// A list in an element of its own.
  List,
  /// The elements of a list, without an element around them.
  Items,
  /// An object in its element, written when there is one.
  Object,
  /// An object read from the next node whatever its name.
  Unnamed,
  /// An element that holds a text.
  Text,
  /// The text as the element's own content.
  Content,
  /// Written and read by the class.
  Custom
};

/// An element that a class writes and reads itself.
struct ElementShape {
  enum class Content : uint8_t { Children, Text };

  std::u16string name;
  Content content = Content::Text;
  /// Attributes, all of them required.
  std::vector<std::u16string> attributes = {};
};

struct Child {
  ChildKind kind;
  /// The element of a text; empty for the kinds whose class knows it.
  std::u16string name = {};
  void* (*storage)(Object& object) = nullptr;
  std::string_view property = {};
  /// Of the text, the list or the object; none of what the class writes itself.
  ValueType type = {};
  /// A list that is written also when it is empty is left out here.
  bool leaveOutEmpty = false;
  /// A text is written also when it is empty.
  bool always = false;
  /// Reading raises `WrongElementName` when another node stands in the place of a text.
  bool strict = false;
  /// What is written in place of a text.
  praxen::Text (*writtenAs)(const praxen::Text& text) = nullptr;
  /// The element inside the element of a text that holds it, as in an SFC step's actions.
  std::u16string inner = {};
  void (*writeXML)(Object& object, XMLStringWriter& writer) = nullptr;
  /// Moves the cursor past what it reads.
  void (*readXML)(Object& object, XmlCursor& cursor) = nullptr;
  /// The name of the element of the list's or object's class.
  std::u16string (*elementName)() = nullptr;
  /// The elements of a custom child, and what they hold in a sentence.
  std::vector<ElementShape> shapes = {};
  std::string_view explanation = {};
  /// The content is markup of any form, which nothing looks into.
  bool isMarkup = false;

  // Filled in before the layout is used.

  /// Of the text or the reference: in bytes from the start of the object.
  std::ptrdiff_t offset = 0;
  /// The name of its element.
  XmlName xmlName = nullptr;
  /// The published member of the property; null when it is not published.
  const Member* member = nullptr;
  /// What writing copies around a text.
  std::shared_ptr<const TextMarkup> markup = {};
};

/// One of the classes that the elements of a list may have.
struct Choice {
  const ClassDescription& (*object)() = nullptr;
  std::u16string (*elementName)() = nullptr;
  Ref<Object> (*create)() = nullptr;
  /// Whether an element of a kind interface says that it is of this class; null in other lists.
  bool (*isKind)(const Object& element) = nullptr;

  // Filled in before the layout is used.

  /// The name of its element.
  XmlName xmlName = nullptr;
  const ClassDescription* description = nullptr;
};

/// When a list writes an element around its elements.
enum class Container : uint8_t { None, WhenNotEmpty, Always };

struct Layout {
  /// The class's name when empty.
  std::u16string element = {};
  std::vector<Attribute> attributes = {};
  std::vector<Child> children = {};
  /// Of a list: the classes of its elements, in the order in which names and kinds are tested.
  std::vector<Choice> elements = {};
  Container container = Container::Always;

  // Filled in before the layout is used.

  /// Of the attributes that must not be empty, in bytes from the start of the object.
  std::vector<std::ptrdiff_t> requiredTexts = {};
  /// Those that have to be given, and those whose absence empties a text that is not empty in a new
  /// object: a bit for each attribute, in their order.
  uint64_t givenAttributes = 0;
  uint64_t emptiedAttributes = 0;
  /// What writing copies.
  std::shared_ptr<const ElementMarkup> markup = {};
};

/// The value that lies so many bytes after the start of an object.
inline void* ValueAt(Object& object, std::ptrdiff_t offset) noexcept {
  return reinterpret_cast<std::byte*>(&object) + offset;
}
/// The value of an attribute, or the text or reference of a child, of an object of the layout's
/// class.
template <class Entry>
void* ValueOf(const Entry& entry, Object& object) noexcept {
  return ValueAt(object, entry.offset);
}

/// Names the element, joins attributes and children to the members of the class, and fills in what
/// attributes hold in a new object.
Layout CompleteLayout(Layout layout, std::u16string element, Object& created);

/// The name of the element of a class: its `kElement` where it states one, else its own.
template <class Class>
std::u16string ElementName() {
  if constexpr (requires { Class::kElement; }) {
    return Class::kElement;
  } else {
    return WidenAscii(TypeName<Class>());
  }
}

template <auto Pointer>
Attribute MakeAttribute(Rule rule, std::u16string_view name) {
  using Slots = PropertySlots<Pointer>;
  constexpr std::string_view property = EntityName<Pointer>();
  return {name.empty() ? WidenAscii(property) : std::u16string(name), rule,
          ValueTypeOf<typename Slots::Value>(), &Slots::Address, property};
}

// The attributes are named like their properties unless a name is given.

template <auto Pointer>
Attribute required(std::u16string_view name = {}) {
  return MakeAttribute<Pointer>(Rule::Required, name);
}
template <auto Pointer>
Attribute always(std::u16string_view name = {}) {
  return MakeAttribute<Pointer>(Rule::Always, name);
}
template <auto Pointer>
Attribute optional(std::u16string_view name = {}) {
  return MakeAttribute<Pointer>(Rule::Optional, name);
}
template <auto Pointer>
Attribute unlessEmpty(std::u16string_view name = {}) {
  return MakeAttribute<Pointer>(Rule::UnlessEmpty, name);
}
template <auto Pointer>
Attribute readOnly(std::u16string_view name = {}) {
  return MakeAttribute<Pointer>(Rule::ReadOnly, name);
}
inline Attribute ReadIfPresent(Attribute attribute) {
  attribute.readIfPresent = true;
  return attribute;
}

/// The attributes of a type's head, followed by the others.
template <class Class>
std::vector<Attribute> POUHeader(std::initializer_list<Attribute> others = {}) {
  std::vector<Attribute> attributes{required<&Class::Name>(), optional<&Class::Protected>(),
                                    optional<&Class::Hidden>(), optional<&Class::Scope>()};
  attributes.insert(attributes.end(), others);
  return attributes;
}

template <auto Pointer>
Child MakeChild(ChildKind kind) {
  using Slots = PropertySlots<Pointer>;
  Child child{kind};
  child.storage = &Slots::Address;
  child.property = EntityName<Pointer>();
  child.type = ValueTypeOf<typename Slots::Value>();
  if constexpr (ReferenceType<typename Slots::Value>) {
    using Held = typename RefTarget<typename Slots::Value>::type;
    child.elementName = &ElementName<Held>;
  } else {
    child.name = WidenAscii(child.property);
  }
  return child;
}

template <auto Pointer>
Child list() {
  return MakeChild<Pointer>(ChildKind::List);
}
/// A list that always writes its element elsewhere, and here only when it is not empty.
template <auto Pointer>
Child listUnlessEmpty() {
  Child child = list<Pointer>();
  child.leaveOutEmpty = true;
  return child;
}
template <auto Pointer>
Child items() {
  return MakeChild<Pointer>(ChildKind::Items);
}
template <auto Pointer>
Child object() {
  return MakeChild<Pointer>(ChildKind::Object);
}
template <auto Pointer>
Child unnamed() {
  return MakeChild<Pointer>(ChildKind::Unnamed);
}
template <auto Pointer>
Child text() {
  return MakeChild<Pointer>(ChildKind::Text);
}
/// A text in an element inside another element.
template <auto Pointer>
Child textIn(std::u16string_view element, std::u16string_view inner) {
  Child child = text<Pointer>();
  child.name = element;
  child.inner = inner;
  return child;
}
/// A text whose element is written also when the text is empty.
template <auto Pointer>
Child textAlways(std::u16string_view name = {}) {
  Child child = text<Pointer>();
  if (!name.empty()) child.name = name;
  child.always = true;
  return child;
}
/// A text that must be the next node, if there is one.
template <auto Pointer>
Child strictText() {
  Child child = text<Pointer>();
  child.strict = true;
  return child;
}
template <auto Pointer>
Child content() {
  return MakeChild<Pointer>(ChildKind::Content);
}

template <class Pointer>
struct OwnerOf;
template <class C, class T>
struct OwnerOf<T C::*> {
  using type = C;
};

/// Children that the class writes and reads itself, with `void Write(XMLStringWriter&)` and
/// `void Read(XmlCursor& cursor)`, which moves the cursor past what it reads.
template <auto Write, auto Read>
Child custom(std::string_view explanation, std::vector<ElementShape> shapes) {
  Child child{ChildKind::Custom};
  child.shapes = std::move(shapes);
  child.writeXML = [](Object& object, XMLStringWriter& writer) {
    (static_cast<typename detail::OwnerOf<decltype(Write)>::type&>(object).*Write)(writer);
  };
  child.readXML = [](Object& object, XmlCursor& cursor) {
    (static_cast<typename detail::OwnerOf<decltype(Read)>::type&>(object).*Read)(cursor);
  };
  child.explanation = explanation;
  return child;
}

/// The elements of a list that are all of one class.
template <class Class>
Choice choice() {
  return {&Describe<Class>, &ElementName<Class>, [] { return Ref<Object>(New<Class>()); }};
}
/// Elements of a kind that answer true to `IsKind`.
template <class Class, class Kind, bool (Kind::*IsKind)() const>
Choice choice() {
  Choice made = choice<Class>();
  made.isKind = [](const Object& element) { return (static_cast<const Kind&>(element).*IsKind)(); };
  return made;
}

/// The choices, of which the last is taken also for elements that answered true to none.
inline std::vector<Choice> LastOtherwise(std::vector<Choice> choices) {
  choices.back().isKind = [](const Object&) { return true; };
  return choices;
}

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_LAYOUT_H_
