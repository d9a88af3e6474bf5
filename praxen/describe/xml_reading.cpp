// The one walk that reads every described class.
#include "praxen/describe/xml_reading.h"

#include "praxen/core/error.h"
#include "praxen/core/numbers.h"
#include "praxen/describe/description.h"
#include "praxen/describe/loss_recording.h"
#include "praxen/describe/reflection.h"
#include "praxen/xml/xml_cursor.h"
#include "praxen/xml/xml_markup.h"

namespace praxen::describe {

namespace {

Error MissingAttribute(const XmlNode& node, std::u16string_view name) {
  return MissingObject(u"The attribute \""_text + name + u"\" of \"" + node.nodeName() +
                       u"\" is missing")
      .At(node.place());
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
    SetValue(attribute, object, found->value(), DocumentValues::Instance());
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

Error MissingContent(const XmlNode& node) {
  return MissingObject(u"The content of \""_text + node.nodeName() + u"\" is missing")
      .At(node.place());
}

// What a class reads itself, out of nodes.
class NodeCursor final : public XmlCursor {
 public:
  explicit NodeCursor(const XmlNode& node) : node_(node) {}

  XmlNode node() const override { return node_; }
  std::u16string_view name() override { return node_.nodeName(); }

  bool isAtEnd() override {
    return !node_ || (node_.kind() == XmlNodeKind::Text && IsXmlBlank(node_.nodeValue()));
  }

  std::u16string_view ReadAttribute(std::u16string_view name) override {
    const XmlAttribute* const attribute = node_.attribute(name);
    if (attribute == nullptr) throw MissingAttribute(node_, name);
    if (node_.recorder() != nullptr) node_.recorder()->Take(*attribute);
    return attribute->value();
  }

  bool ReadBoolean(std::u16string_view name) override {
    const bool isTrue = TextToBoolean(ReadAttribute(name));
    if (node_.recorder() != nullptr) RecordBoolean(isTrue, node_, *node_.attribute(name));
    return isTrue;
  }

  std::u16string_view ReadText() override {
    const std::u16string_view text = FirstText(node_);
    node_ = node_.nextSibling();
    return text;
  }

  std::u16string_view ReadRequiredText(std::u16string_view name) override {
    if (node_.recorder() != nullptr) node_.recorder()->ReadAs(node_, name);
    const XmlNode node = node_;
    const std::u16string_view text = ReadText();
    if (text.empty()) throw MissingContent(node);
    return text;
  }

  Text ReadMarkup(std::u16string_view owner) override {
    const Text markup = node_.Markup();
    if (node_.recorder() != nullptr) node_.recorder()->TakeMarkup(node_, owner);
    node_ = node_.nextSibling();
    return markup;
  }

  void Enter() override {
    entered_.push_back(node_);
    node_ = node_.firstChild();
  }

  void RequireChildren(size_t count) override {
    if (!entered_.back().childNode(count - 1)) throw MissingContent(entered_.back());
  }

  void Leave() override {
    node_ = entered_.back().nextSibling();
    entered_.pop_back();
  }

 private:
  XmlNode node_;
  std::vector<XmlNode> entered_;
};

[[gnu::noinline]] void ReadWithCursor(Object& object, const Child& child, XmlNode& node) {
  NodeCursor cursor(node);
  child.readXML(object, cursor);
  node = cursor.node();
}

void ReadChild(Object& object, const Child& child, const XmlNode& parent, XmlNode& cursor) {
  switch (child.kind) {
    case ChildKind::Custom:
      return ReadWithCursor(object, child, cursor);
    case ChildKind::Content:
      SetText(*static_cast<Text*>(ValueOf(child, object)), FirstText(parent),
              DocumentValues::Instance());
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

void SetText(Text& value, std::u16string_view text, DocumentValues& values) {
  // Most attributes hold what a new object holds.
  if (value.view() != text) value = values.texts.Share(text);
}

void SetValue(const Attribute& attribute, Object& object, std::u16string_view text,
              DocumentValues& values) {
  VisitValue(attribute.type, ValueOf(attribute, object),
             Overloaded{[&](Text& held) { SetText(held, text, values); },
                        [&](bool& isTrue) { isTrue = TextToBoolean(text); },
                        [&](const EnumerationValue<int32_t>& constant) {
                          constant.number = constant.description.FromText(text);
                        },
                        [&](double& number) { number = values.numbers.ToDouble(text); },
                        [&](int32_t& number) { number = TextToInteger(text); }});
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
