// The one walk that writes every described class.
#include "praxen/describe/xml_writing.h"

#include <algorithm>
#include <cstddef>

#include "praxen/core/error.h"
#include "praxen/core/numbers.h"
#include "praxen/describe/description.h"
#include "praxen/describe/element_markup.h"
#include "praxen/describe/reflection.h"
#include "praxen/xml/xml_pen.h"

namespace praxen::describe {

namespace {

template <class T>
const T& As(const void* value) {
  return *static_cast<const T*>(value);
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

[[noreturn, gnu::noinline]] void ThrowRequiredFieldsEmpty(Object& object, const Layout& layout) {
  throw RequiredFieldsEmpty(EmptyFields(object, layout));
}

void RequireFields(Object& object, const Layout& layout) {
  for (const std::ptrdiff_t offset : layout.requiredTexts) {
    if (As<Text>(ValueAt(object, offset)).empty()) [[unlikely]]
      ThrowRequiredFieldsEmpty(object, layout);
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

// A number as an attribute has it.
int32_t NumberOf(ValueKind kind, const void* value) {
  return kind == ValueKind::Boolean ? int32_t{As<bool>(value)} : As<int32_t>(value);
}

char16_t* CopyConstant(const AttributeMarkup& attribute, int32_t value, char16_t* to) {
  using Constant = AttributeMarkup::Constant;
  const auto found = std::ranges::find(attribute.constants, value, &Constant::value);
  return found == attribute.constants.end() ? to : std::ranges::copy(found->text, to).out;
}

char16_t* CopyNumber(const AttributeMarkup& attribute, int32_t number, char16_t* to) {
  switch (attribute.kind) {
    case ValueKind::Boolean:
      *to = number != 0 ? u'1' : u'0';
      return to + 1;
    case ValueKind::Enumeration:
      return CopyConstant(attribute, number, to);
    default:
      return WriteNumber(number, to);
  }
}

// Copies an attribute that is no text to where there is the room for it, and returns the end.
[[gnu::noinline]] char16_t* CopyAttribute(const AttributeMarkup& attribute, const void* value,
                                          char16_t* to) {
  const bool isReal = attribute.kind == ValueKind::Double;
  if (isReal) {
    if (attribute.canBeAbsent && As<double>(value) == attribute.absentReal) return to;
  } else if (attribute.canBeAbsent && NumberOf(attribute.kind, value) == attribute.absentNumber) {
    return to;
  }
  char16_t* const start = attribute.start.CopyTo(to, false);
  char16_t* const end = isReal ? WriteNumber(As<double>(value), start)
                               : CopyNumber(attribute, NumberOf(attribute.kind, value), start);
  *end = u'\'';
  return end + 1;
}

// What follows has the pen in registers, and is inlined for it.

[[gnu::always_inline]] inline void PutAttributes(Object& object, const Layout& layout,
                                                 XmlPen& pen) {
  for (const AttributeMarkup& attribute : layout.markup->attributes) {
    const void* const value = ValueOf(attribute, object);
    if (attribute.kind != ValueKind::Text) {
      pen.Reserve(attribute.room);
      pen.PutFilled([&](char16_t* to) { return CopyAttribute(attribute, value, to); });
      continue;
    }
    const Text& text = As<Text>(value);
    if (attribute.canBeAbsent && text == attribute.absentText) continue;
    pen.PutAttribute(attribute.start, text);
  }
}

[[gnu::always_inline]] inline void PutStart(const Layout& layout, XMLStringWriter& writer,
                                            XmlPen& pen) {
  const XmlPiece& start = layout.markup->start;
  pen.Reserve(XMLStringWriter::kMostTagEnd + start.room());
  writer.CloseStartTag(pen);
  pen.Put(start);
  writer.OpenElement();
}

[[gnu::always_inline]] inline void PutText(const TextMarkup& markup, std::u16string_view text,
                                           XMLStringWriter& writer, XmlPen& pen) {
  writer.RequireDepth(markup.depth);
  pen.Reserve(XMLStringWriter::kMostTagEnd + text.size() + markup.outerStart.room());
  if (markup.depth == 0) {
    writer.StartContent(pen);
    return pen.PutValue<XmlPlace::Content>(text, 0);
  }
  writer.CloseStartTag(pen);
  if (markup.depth == 2) pen.Put(markup.outerStart);
  pen.PutText(markup.tags, text);
  if (markup.depth == 1) return;
  pen.Reserve(markup.outerEnd.room());
  pen.Put(markup.outerEnd);
}

[[gnu::always_inline]] inline void PutEnd(const Layout& layout, XMLStringWriter& writer,
                                          XmlPen& pen) {
  pen.Reserve(layout.markup->end.room());
  if (writer.isEmpty()) {
    pen.PutEmptyElementEnd();
  } else {
    pen.Put(layout.markup->end);
  }
  writer.CloseElement();
}

bool IsText(const Child& child) { return child.markup != nullptr; }

bool IsLeftOut(const Child& child, const Text& value) { return value.empty() && !child.always; }

// Whether nothing is written for a child that is no text.
bool IsLeftOut(Object& object, const Child& child) {
  if (child.kind == ChildKind::Custom) return false;
  const Object* const held = Held(object, child);
  if (held == nullptr) return child.kind == ChildKind::Object;
  return child.leaveOutEmpty && held->elements()->empty();
}

// Of an element that is written as a whole.
constexpr ptrdiff_t kNothing = -1;

// Writes the start tag and the texts that come first. With nothing else inside, the element is
// written, and the result is `kNothing`; else it is the index of the child to go on with. Apart
// from the walk, as is whatever keeps much on the stack.
[[gnu::noinline]] ptrdiff_t WriteBeginning(Object& object, const Layout& layout,
                                           XMLStringWriter& writer) {
  RequireFields(object, layout);
  const bool isRoot = object.IsRoot;
  if (isRoot) [[unlikely]] {
    object.IsRoot = false;
    writer.WriteStartRootElement(layout.element);
  }
  XmlPen pen = writer.Pen();
  if (!isRoot) PutStart(layout, writer, pen);
  PutAttributes(object, layout, pen);
  auto child = layout.children.begin();
  for (; child != layout.children.end(); ++child) {
    if (!IsText(*child)) {
      if (IsLeftOut(object, *child)) continue;
      break;
    }
    const Text& value = As<Text>(ValueOf(*child, object));
    if (IsLeftOut(*child, value)) continue;
    if (child->writtenAs != nullptr) break;
    PutText(*child->markup, value, writer, pen);
  }
  const bool isWhole = child == layout.children.end() && layout.elements.empty();
  if (isWhole) PutEnd(layout, writer, pen);
  pen.Finish();
  return isWhole ? kNothing : child - layout.children.begin();
}

// Whether answering for its kind may be a client's code.
bool IsClients(const Ref<Object>& element) { return element && element->description().isKind; }

// An element of our own classes is known by its class. Another, which a client made, is asked for
// its kind: if it claims one of our classes without being of it, it cannot be written; if it claims
// none, it is left out.
[[gnu::noinline]] bool IsOfChosenClass(const Object& element, const Layout& list) {
  const ClassDescription& description = element.description();
  const auto isClass = [&](const Choice& choice) { return choice.description == &description; };
  if (std::ranges::any_of(list.elements, isClass)) return true;
  for (const Choice& choice : list.elements) {
    if (choice.isKind != nullptr && choice.isKind(element)) ThrowTypeMismatch();
  }
  return false;
}

// The layout of an object's class; a client's own implementation of a kind has none.
const Layout& RequireLayout(const Object& object) {
  const ClassDescription& description = object.description();
  if (description.layout == nullptr) ThrowTypeMismatch();
  return description.layout();
}

// Fetches the object of an element that is soon to be written into the cache.
void Prefetch(const std::vector<Ref<Object>>& elements, size_t index) {
  if (index >= elements.size() || !elements[index]) return;
  constexpr size_t kCacheLine = 64;
  const auto* const object = reinterpret_cast<const std::byte*>(elements[index].get());
  __builtin_prefetch(object);
  __builtin_prefetch(object + kCacheLine);
}

// A client's own element may change any list above it while it is asked for its kind; its own list
// is written as it was before.
void WriteElements(Object& object, const Layout& list, XMLStringWriter& writer) {
  constexpr size_t kAhead = 4;
  const bool mixed = list.elements.front().isKind != nullptr;
  const std::vector<Ref<Object>>& held = *object.elements();
  const bool asksClients = mixed && std::ranges::any_of(held, IsClients);
  const std::vector<Ref<Object>> kept = asksClients ? held : std::vector<Ref<Object>>();
  const std::vector<Ref<Object>>& elements = asksClients ? kept : held;
  // Of the element before.
  const ClassDescription* known = nullptr;
  const Layout* layout = nullptr;
  for (size_t i = 0; i < elements.size(); ++i) {
    Prefetch(elements, i + kAhead);
    const Ref<Object> element = elements[i];
    const bool isKnown = element && &element->description() == known;
    if (mixed && !isKnown && !IsOfChosenClass(*element, list)) continue;
    try {
      if (!isKnown) {
        layout = &RequireLayout(*element);
        known = &element->description();
      }
      WriteElement(*element, *layout, writer);
    } catch (const Error& error) {
      RethrowInList(error, i, list);
    }
  }
}

[[gnu::noinline]] void WriteText(const Child& child, const Text& value, XMLStringWriter& writer) {
  if (IsLeftOut(child, value)) return;
  XmlPen pen = writer.Pen();
  PutText(*child.markup, child.writtenAs == nullptr ? value : child.writtenAs(value), writer, pen);
  pen.Finish();
}

void WriteChild(Object& object, const Child& child, XMLStringWriter& writer) {
  if (child.kind == ChildKind::Custom) return child.writeXML(object, writer);
  if (IsText(child)) return WriteText(child, As<Text>(ValueOf(child, object)), writer);
  if (IsLeftOut(object, child)) return;
  // A client's own element, asked for its kind, may replace what holds it.
  const Ref<Object> held = Held(object, child);
  held->WriteXML(writer);
}

[[gnu::noinline]] void WriteEnd(const Layout& layout, XMLStringWriter& writer) {
  XmlPen pen = writer.Pen();
  PutEnd(layout, writer, pen);
  pen.Finish();
}

}  // namespace

void WriteElement(Object& object, const Layout& layout, XMLStringWriter& writer) {
  const bool isList = !layout.elements.empty();
  if (isList && layout.container != Container::Always && object.elements()->empty()) return;
  if (isList && layout.container == Container::None) return WriteElements(object, layout, writer);
  const ptrdiff_t next = WriteBeginning(object, layout, writer);
  if (next == kNothing) return;
  for (auto child = layout.children.begin() + next; child != layout.children.end(); ++child) {
    WriteChild(object, *child, writer);
  }
  if (isList) WriteElements(object, layout, writer);
  WriteEnd(layout, writer);
}

Text AttributeText(const Attribute& attribute, const void* value) {
  Text text;
  VisitValue(attribute.type, value,
             Overloaded{[&](const Text& characters) { text = characters; },
                        [&](const bool& isTrue) { text = isTrue ? u"1"_text : u"0"_text; },
                        [&](const EnumerationValue<const int32_t>& constant) {
                          text = constant.description.ToText(constant.number);
                        },
                        [&](const auto& number) { text = Text(NumberText(number)); }});
  return text;
}

}  // namespace praxen::describe

namespace praxen {

using namespace detail;

void Object::WriteXML(XMLStringWriter& writer) {
  WriteElement(*this, RequireLayout(*this), writer);
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
