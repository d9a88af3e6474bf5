// The one walk that writes every described class.
#include "praxen/describe/xml_writing.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "praxen/core/error.h"
#include "praxen/core/numbers.h"
#include "praxen/describe/description.h"
#include "praxen/xml/xml_name.h"

namespace praxen::describe {

namespace {

template <class T>
const T& As(const void* value) {
  return *static_cast<const T*>(value);
}

std::ptrdiff_t OffsetIn(const Object& object, const void* value) {
  return static_cast<const std::byte*>(value) - reinterpret_cast<const std::byte*>(&object);
}

// Whether the value is the one that absence stands for.
bool IsAbsent(const Attribute& attribute, const void* value) {
  if (!attribute.canBeAbsent) return false;
  switch (attribute.type.kind) {
    case ValueKind::Text:
      return As<Text>(value) == attribute.absentText;
    case ValueKind::Boolean:
      return As<bool>(value) == (attribute.absentNumber != 0);
    case ValueKind::Double:
      return NumberText(As<double>(value)) == attribute.absentText;
    default:
      return As<int32_t>(value) == attribute.absentNumber;
  }
}

template <class Consumer>
void WithText(const Attribute& attribute, const void* value, Consumer consume) {
  switch (attribute.type.kind) {
    case ValueKind::Text:
      return consume(As<Text>(value).view());
    case ValueKind::Boolean:
      return consume(As<bool>(value) ? std::u16string_view(u"1") : std::u16string_view(u"0"));
    case ValueKind::Enumeration:
      return consume(attribute.type.enumeration->ToText(As<int32_t>(value)));
    case ValueKind::Double:
      return consume(NumberText(As<double>(value)));
    default:
      return consume(NumberText(As<int32_t>(value)));
  }
}

void RequireFields(Object& object, const Layout& layout) {
  for (const std::ptrdiff_t offset : layout.requiredTexts) {
    if (As<Text>(ValueAt(object, offset)).empty()) throw RequiredFieldsEmpty();
  }
}

void WriteAttributes(Object& object, const Layout& layout, XMLStringWriter& writer) {
  for (const Attribute& attribute : layout.attributes) {
    if (attribute.rule == Rule::ReadOnly) continue;
    const void* const value = ValueOf(attribute, object);
    if (IsAbsent(attribute, value)) continue;
    WithText(attribute, value,
             [&](std::u16string_view text) { writer.WriteAttributeString(attribute.name, text); });
  }
}

// An element of our own classes is known by its class. Another, which a client made, is asked for
// its kind: if it claims one of our classes without being of it, it cannot be written; if it claims
// none, it is left out.
bool IsOfChosenClass(const Object& element, const Layout& list) {
  const ClassDescription& description = element.description();
  const auto isClass = [&](const Choice& choice) { return &choice.object() == &description; };
  if (std::ranges::any_of(list.elements, isClass)) return true;
  for (const Choice& choice : list.elements) {
    if (choice.isKind != nullptr && choice.isKind(element)) ThrowTypeMismatch();
  }
  return false;
}

// A client's own element may change the list while it is asked for its kind.
void WriteElements(Object& object, const Layout& list, XMLStringWriter& writer) {
  const std::vector<Ref<Object>>& elements = *object.elements();
  const bool mixed = list.elements.front().isKind != nullptr;
  for (size_t i = 0; i < elements.size(); ++i) {
    const Ref<Object> element = elements[i];
    if (mixed && !IsOfChosenClass(*element, list)) continue;
    element->WriteXML(writer);
  }
}

void WriteText(const Child& child, const Text& value, XMLStringWriter& writer) {
  if (value.empty() && !child.always) return;
  if (child.kind == ChildKind::Content) return writer.WriteElementValue(value);
  if (child.inner.empty()) {
    return writer.WriteElementString(child.name,
                                     child.writtenAs == nullptr ? value : child.writtenAs(value));
  }
  writer.WriteStartElement(child.name);
  writer.WriteElementString(child.inner, value);
  writer.WriteEndElement(child.name);
}

void WriteChild(Object& object, const Child& child, XMLStringWriter& writer) {
  switch (child.kind) {
    case ChildKind::Custom:
      return child.writeXML(object, writer);
    case ChildKind::Text:
    case ChildKind::Content:
      return WriteText(child, As<Text>(ValueOf(child, object)), writer);
    default:
      break;
  }
  Object* const held = child.held(object);
  if (held == nullptr) {
    if (child.kind == ChildKind::Object) return;
    ThrowMissingObject();
  }
  if (child.leaveOutEmpty && held->elements()->empty()) return;
  held->WriteXML(writer);
}

}  // namespace

void WriteStartTag(Object& object, std::u16string_view element, XMLStringWriter& writer) {
  if (std::exchange(object.IsRoot, false)) {
    writer.WriteStartRootElement(element);
  } else {
    writer.WriteStartElement(element);
  }
}

void WriteElement(Object& object, const Layout& layout, XMLStringWriter& writer) {
  const bool isList = !layout.elements.empty();
  if (isList && layout.container != Container::Always && object.elements()->empty()) return;
  const bool hasElement = !isList || layout.container != Container::None;
  if (hasElement) {
    RequireFields(object, layout);
    WriteStartTag(object, layout.element, writer);
    WriteAttributes(object, layout, writer);
    for (const Child& child : layout.children) WriteChild(object, child, writer);
  }
  if (isList) WriteElements(object, layout, writer);
  if (hasElement) writer.WriteEndElement(layout.element);
}

Text AttributeText(const Attribute& attribute, const void* value) {
  Text text;
  WithText(attribute, value, [&](std::u16string_view written) { text = written; });
  return text;
}

namespace {

void CompleteAttribute(Attribute& attribute, Object& created) {
  const void* const value = attribute.storage(created);
  attribute.offset = OffsetIn(created, value);
  attribute.xmlName = InternXmlName(attribute.name);
  attribute.canBeAbsent = attribute.rule == Rule::Optional || attribute.rule == Rule::UnlessEmpty;
  if (attribute.rule == Rule::UnlessEmpty) return;
  attribute.absentText = AttributeText(attribute, value);
  switch (attribute.type.kind) {
    case ValueKind::Boolean:
      attribute.absentNumber = As<bool>(value);
      break;
    case ValueKind::Integer:
    case ValueKind::Enumeration:
      attribute.absentNumber = As<int32_t>(value);
      break;
    default:
      break;
  }
}

}  // namespace

Layout CompleteLayout(Layout layout, std::u16string element, Object& created) {
  layout.element = std::move(element);
  for (Attribute& attribute : layout.attributes) {
    CompleteAttribute(attribute, created);
    if (attribute.rule == Rule::Required && attribute.type.kind == ValueKind::Text) {
      layout.requiredTexts.push_back(attribute.offset);
    }
  }
  for (Child& child : layout.children) {
    if (child.storage != nullptr) child.offset = OffsetIn(created, child.storage(created));
    if (child.kind == ChildKind::List || child.kind == ChildKind::Items) {
      child.leaveOutEmpty |= child.object().layout().container != Container::Always;
    }
    if (child.elementName != nullptr) child.name = child.elementName();
    if (!child.name.empty()) child.xmlName = InternXmlName(child.name);
  }
  for (Choice& choice : layout.elements) choice.xmlName = InternXmlName(choice.elementName());
  return layout;
}

}  // namespace praxen::describe

namespace praxen {

using namespace detail;

void Object::WriteXML(XMLStringWriter& writer) {
  // A client's own implementation of a kind has no element.
  if (description().layout == nullptr) ThrowTypeMismatch();
  WriteElement(*this, description().layout(), writer);
}

Text SerializableObject::Serialize() {
  // A failed writing must not leave the object marked: it would be written as a root within its
  // parent's next document.
  struct RootMark {
    explicit RootMark(Object& object) : object(object) { object.IsRoot = true; }
    ~RootMark() { object.IsRoot = false; }
    Object& object;
  };
  XMLStringWriter& writer = SharedWriter();
  writer.WriteStartDocument();
  const RootMark mark(*this);
  WriteXML(writer);
  return writer.ToXMLString();
}

}  // namespace praxen
