// The one walk that writes every described class.
#include "praxen/describe/xml_writing.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "praxen/core/error.h"
#include "praxen/core/numbers.h"
#include "praxen/describe/description.h"
#include "praxen/describe/reflection.h"
#include "praxen/xml/xml_name.h"

namespace praxen::describe {

namespace {

template <class T>
const T& As(const void* value) {
  return *static_cast<const T*>(value);
}

// Whether the value is the one that absence stands for.
bool IsAbsent(const Attribute& attribute, const void* value) {
  if (!attribute.canBeAbsent) return false;
  return VisitValue(
      attribute.type, value,
      Overloaded{[&](const Text& text) { return text == attribute.absentText; },
                 [&](const bool& isTrue) { return isTrue == (attribute.absentNumber != 0); },
                 [&](const double& number) { return NumberText(number) == attribute.absentText; },
                 [&](const int32_t& number) { return number == attribute.absentNumber; }});
}

template <class Consumer>
void WithText(const Attribute& attribute, const void* value, Consumer consume) {
  VisitValue(attribute.type, value,
             Overloaded{[&](const Text& text) { consume(text.view()); },
                        [&](const bool& isTrue) { consume(isTrue ? u"1" : u"0"); },
                        [&](const EnumerationValue<const int32_t>& constant) {
                          consume(constant.description.ToText(constant.number));
                        },
                        [&](const double& number) { consume(NumberText(number)); },
                        [&](const int32_t& number) { consume(NumberText(number)); }});
}

// The required attributes that are empty, and what is known of the object they belong to.
Text EmptyFields(Object& object, const Layout& layout) {
  Text fields, name;
  for (const Attribute& attribute : layout.attributes) {
    if (attribute.type.kind != ValueKind::Text) continue;
    const Text& value = As<Text>(ValueOf(attribute, object));
    if (attribute.name == u"Name") name = value;
    if (attribute.rule != Rule::Required || !value.empty()) continue;
    fields = (fields.empty() ? fields : fields + u" and ") + WidenAscii(attribute.property);
  }
  fields = fields + u" of " + WidenAscii(object.description().name);
  return name.empty() ? fields : fields + u" " + Quoted(name);
}

// Apart from the walk, which goes as deep as the objects and must not need their stack at each
// level.
[[gnu::noinline]] void RequireFields(Object& object, const Layout& layout) {
  for (const std::ptrdiff_t offset : layout.requiredTexts) {
    if (!As<Text>(ValueAt(object, offset)).empty()) continue;
    throw RequiredFieldsEmpty(EmptyFields(object, layout));
  }
}

// Names the place in the list of an element that cannot be written, and goes on with its error.
[[noreturn, gnu::noinline]] void RethrowInList(const Error& error, size_t index,
                                               const Layout& list) {
  constexpr size_t kMostCharacters = 500;
  if (error.detail().empty() || error.detail().size() > kMostCharacters) throw;
  throw error.With(error.detail() + u", element " + DecimalText(index + 1) + u" of " +
                   list.element);
}

[[gnu::noinline]] void WriteAttributes(Object& object, const Layout& layout,
                                       XMLStringWriter& writer) {
  for (const Attribute& attribute : layout.attributes) {
    if (attribute.rule == Rule::ReadOnly) continue;
    const void* const value = ValueOf(attribute, object);
    if (IsAbsent(attribute, value)) continue;
    WithText(attribute, value,
             [&](std::u16string_view text) { writer.WriteAttributeString(attribute.name, text); });
  }
}

// Whether answering for its kind may be a client's code.
bool IsClients(const Ref<Object>& element) { return element && element->description().isKind; }

// An element of our own classes is known by its class. Another, which a client made, is asked for
// its kind: if it claims one of our classes without being of it, it cannot be written; if it claims
// none, it is left out.
[[gnu::noinline]] bool IsOfChosenClass(const Object& element, const Layout& list) {
  const ClassDescription& description = element.description();
  const auto isClass = [&](const Choice& choice) { return &choice.object() == &description; };
  if (std::ranges::any_of(list.elements, isClass)) return true;
  for (const Choice& choice : list.elements) {
    if (choice.isKind != nullptr && choice.isKind(element)) ThrowTypeMismatch();
  }
  return false;
}

// A client's own element may change any list above it while it is asked for its kind; its own list
// is written as it was before.
void WriteElements(Object& object, const Layout& list, XMLStringWriter& writer) {
  const bool mixed = list.elements.front().isKind != nullptr;
  const std::vector<Ref<Object>>& held = *object.elements();
  const bool asksClients = mixed && std::ranges::any_of(held, IsClients);
  const std::vector<Ref<Object>> kept = asksClients ? held : std::vector<Ref<Object>>();
  const std::vector<Ref<Object>>& elements = asksClients ? kept : held;
  for (size_t i = 0; i < elements.size(); ++i) {
    const Ref<Object> element = elements[i];
    if (mixed && !IsOfChosenClass(*element, list)) continue;
    try {
      element->WriteXML(writer);
    } catch (const Error& error) {
      RethrowInList(error, i, list);
    }
  }
}

[[gnu::noinline]] void WriteText(const Child& child, const Text& value, XMLStringWriter& writer) {
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
  // A client's own element, asked for its kind, may replace what holds it.
  const Ref<Object> held = Held(object, child);
  if (!held) {
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
  const Ref<Object> kept = KeepIfShared(*this);
  const DocumentWriter document;
  XMLStringWriter& writer = *document;
  writer.WriteStartDocument();
  const RootMark mark(*this);
  WriteXML(writer);
  return writer.ToXMLString();
}

}  // namespace praxen
