// The one walk that reads every described class.
#include "praxen/describe/xml_reading.h"

#include "praxen/core/error.h"
#include "praxen/core/numbers.h"
#include "praxen/describe/description.h"
#include "praxen/describe/loss_recording.h"
#include "praxen/describe/reflection.h"
#include "praxen/describe/shared_texts.h"

namespace praxen::describe {

namespace {

bool TextToBoolean(std::u16string_view text) { return text == u"1" || text == u"true"; }

void SetText(Text& value, std::u16string_view text) {
  // Most attributes hold what a new object holds.
  if (value.view() != text) value = SharedTexts::Instance().Share(text);
}

Error MissingAttribute(const XmlNode& node, std::u16string_view name) {
  return MissingObject(u"The attribute \""_text + name + u"\" of \"" + node.nodeName() +
                       u"\" is missing")
      .At(node.place());
}

void SetValue(const Attribute& attribute, void* value, std::u16string_view text) {
  VisitValue(attribute.type, value,
             Overloaded{[&](Text& held) { SetText(held, text); },
                        [&](bool& isTrue) { isTrue = TextToBoolean(text); },
                        [&](const EnumerationValue<int32_t>& constant) {
                          constant.number = constant.description.FromText(text);
                        },
                        [&](double& number) { number = XMLTextToDouble(text); },
                        [&](int32_t& number) { number = TextToInteger(text); }});
}

std::u16string_view ExpectedOf(const Attribute& attribute) {
  return attribute.type.kind == ValueKind::Double ? u"a number" : u"an integer of 32 bits";
}

// Tells of a text that could not be converted; an illegal separator is not the text's fault.
Error ConversionError(const Error& error, const Attribute& attribute, const XmlNode& node,
                      std::u16string_view text) {
  if (error.number() == IllegalDecimalSeparator().number()) return error;
  return error.With(Quoted(text) + u" in the attribute " + Quoted(attribute.name) + u" of " +
                    Quoted(node.nodeName()) + u", where " + ExpectedOf(attribute) +
                    u" is expected");
}

// Apart from the walk, which goes as deep as the document and must not need its stack at each
// level.
[[gnu::noinline]] void ReadAttribute(Object& object, const Attribute& attribute,
                                     const XmlNode& node) {
  const XmlAttribute* const found = node.attribute(attribute.xmlName);
  if (found == nullptr) {
    if (attribute.readIfPresent) return;
    throw MissingAttribute(node, attribute.name);
  }
  try {
    SetValue(attribute, ValueOf(attribute, object), found->value());
  } catch (const Error& error) {
    throw ConversionError(error, attribute, node, found->value()).At(node.place());
  }
}

// The text of an element as `child` lays it out; the value stays as it is where there is no text.
[[gnu::noinline]] void ReadText(Text& value, const Child& child, const XmlNode& node) {
  const XmlNode holder = child.inner.empty() ? node : node.firstChild();
  if (holder.firstChild()) value = FirstText(holder);
  if (node.recorder() != nullptr) RecordText(value, child, node);
}

void ReadChild(Object& object, const Child& child, const XmlNode& parent, XmlNode& cursor) {
  switch (child.kind) {
    case ChildKind::Custom:
      return child.readXML(object, cursor);
    case ChildKind::Content:
      SetText(*static_cast<Text*>(ValueOf(child, object)), FirstText(parent));
      return;
    case ChildKind::Items:
      ReadItems(*Held(object, child), child.type.object().layout(), cursor);
      return;
    case ChildKind::Unnamed:
      if (!cursor) return;
      Held(object, child)->ReadXML(cursor);
      if (cursor.recorder() != nullptr) cursor.recorder()->ReadAs(cursor, child.name);
      break;
    case ChildKind::Text:
      if (child.strict) ReadTextElement(cursor, child.name);
      if (cursor.name() != child.xmlName || !cursor) return;
      ReadText(*static_cast<Text*>(ValueOf(child, object)), child, cursor);
      break;
    case ChildKind::List:
    case ChildKind::Object:
      if (!cursor || cursor.name() != child.xmlName) return;
      HeldOrCreated(object, child).ReadXML(cursor);
      break;
  }
  cursor = cursor.nextSibling();
}

}  // namespace

std::u16string_view RequiredAttribute(const XmlNode& node, std::u16string_view name) {
  const XmlAttribute* const attribute = node.attribute(name);
  if (attribute == nullptr) throw MissingAttribute(node, name);
  if (node.recorder() != nullptr) node.recorder()->Take(*attribute);
  return attribute->value();
}

bool ReadBoolAttribute(const XmlNode& node, std::u16string_view name) {
  const bool isTrue = TextToBoolean(RequiredAttribute(node, name));
  if (node.recorder() != nullptr) RecordBoolean(isTrue, node, *node.attribute(name));
  return isTrue;
}

std::u16string_view FirstText(const XmlNode& node) {
  if (node.recorder() != nullptr) node.recorder()->TakeText(node);
  return node.firstChild().nodeValue();
}

std::u16string_view ReadTextElement(const XmlNode& node, std::u16string_view name) {
  if (!node) return {};
  if (node.nodeName() != name) throw WrongElementName(node.nodeName(), name).At(node.place());
  return FirstText(node);
}

void ReadItems(Object& list, const Layout& layout, XmlNode node) {
  for (; node; node = node.nextSibling()) {
    for (const Choice& choice : layout.elements) {
      if (node.name() != choice.xmlName) continue;
      const Ref<Object> element = choice.create();
      element->ReadXML(node);
      list.Append(element);
      break;
    }
  }
}

void ReadElement(Object& object, const Layout& layout, const XmlNode& node) {
  for (const Attribute& attribute : layout.attributes) ReadAttribute(object, attribute, node);
  XmlNode cursor = node.firstChild();
  for (const Child& child : layout.children) ReadChild(object, child, node, cursor);
  if (!layout.elements.empty()) ReadItems(object, layout, cursor);
  if (node.recorder() != nullptr) RecordElement(object, layout, node);
}

}  // namespace praxen::describe

void praxen::Object::ReadXML(const detail::XmlNode& node) {
  describe::ReadElement(*this, description().layout(), node);
}
