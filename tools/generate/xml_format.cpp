// The description of the exchange format, element by element.
#include <algorithm>
#include <map>

#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"
#include "tests/support/example.h"
#include "tools/generate/documents.h"
#include "tools/generate/schema.h"

namespace praxen::detail {

namespace {

std::string Code(const std::string& text) { return "`" + text + "`"; }

std::string WrittenWhen(const Attribute& attribute) {
  switch (attribute.rule) {
    case Rule::Required:
      return "always; must not be empty";
    case Rule::Always:
      return attribute.readIfPresent ? "always; may be absent when read" : "always";
    case Rule::Optional:
      return "unless it is the default";
    case Rule::UnlessEmpty:
      return "unless empty";
    case Rule::ReadOnly:
      return "never; only read";
  }
  return {};
}

std::string DefaultOf(const Attribute& attribute) {
  const AttributeDeclaration declaration = DeclareAttribute(attribute);
  if (!declaration.defaultValue) return "";
  return declaration.defaultValue->empty() ? "empty" : Code(ToUtf8(*declaration.defaultValue));
}

std::string TextsOf(const EnumerationDescription& enumeration) {
  std::string texts;
  for (const EnumerationConstant& constant : enumeration.constants) {
    const std::string text = Code(ToUtf8(constant.text));
    if (texts.find(text) != std::string::npos) continue;
    texts += (texts.empty() ? "" : ", ") + text;
  }
  return texts;
}

std::string Meaning(const ValueType& type) {
  using std::string, std::type_identity;
  return VisitType(
      type,
      Overloaded{[](type_identity<bool>) -> string { return "`1` or `0`"; },
                 [](type_identity<int32_t>) -> string { return "integer"; },
                 [](type_identity<double>) -> string { return "decimal number"; },
                 [&](type_identity<EnumerationDescription>) { return TextsOf(*type.enumeration); },
                 [](auto) -> string { return "text"; }});
}

std::string AttributeTable(const Layout& layout) {
  if (layout.attributes.empty()) return {};
  std::string text =
      "\n| Attribute | Property | Value | Default | Written |\n| --- | --- | --- | --- | --- |\n";
  for (const Attribute& attribute : layout.attributes) {
    text += "| " + Code(ToUtf8(attribute.name)) + " | " + Code(std::string(attribute.property)) +
            " | " + Meaning(attribute.type) + " | " + DefaultOf(attribute) + " | " +
            WrittenWhen(attribute) + " |\n";
  }
  return text;
}

std::string Elements(const Layout& list) {
  std::string text;
  for (const Choice& choice : list.elements) {
    text += (text.empty() ? "" : ", ") + Code(ToUtf8(*choice.xmlName));
  }
  return text;
}

std::string TextChild(const Child& child) {
  std::string text = Code(ToUtf8(child.name));
  if (!child.inner.empty()) text += " with " + Code(ToUtf8(child.inner)) + " in it";
  text += ": the text of " + Code(std::string(child.property));
  text += child.always ? ", always" : ", unless empty";
  return child.strict ? text + "; no other element may stand here" : text;
}

std::string DescribeChild(const Child& child) {
  switch (child.kind) {
    case ChildKind::Text:
      return TextChild(child);
    case ChildKind::Content:
      return "the text of " + Code(std::string(child.property)) + ", as the element's own content";
    case ChildKind::Items:
      return Elements(child.type.object().layout()) + ": the elements of " +
             Code(std::string(child.property));
    case ChildKind::List: {
      const bool always =
          child.type.object().layout().container == Container::Always && !child.leaveOutEmpty;
      return Code(ToUtf8(child.name)) + ": the list " + Code(std::string(child.property)) +
             (always ? ", always" : ", unless empty");
    }
    case ChildKind::Object:
      return Code(ToUtf8(child.name)) + ": the object " + Code(std::string(child.property)) +
             ", when there is one";
    case ChildKind::Unnamed:
      return Code(ToUtf8(child.name)) + ": the object " + Code(std::string(child.property)) +
             "; read from the next element whatever its name";
    case ChildKind::Custom:
      return std::string(child.explanation);
  }
  return {};
}

std::string ChildList(const Layout& layout) {
  std::string text;
  for (const Child& child : layout.children) text += "- " + DescribeChild(child) + "\n";
  if (!layout.elements.empty()) text += "- " + Elements(layout) + ": the elements of the list\n";
  return text.empty() ? text : "\nChildren, in this order:\n\n" + text;
}

std::string Example(const ClassDescription& description) {
  const Ref<Object> object = description.create();
  FillExample(*object, 1);
  std::string document = ExampleDocument(*object);
  return "\n```xml\n" + document.substr(document.find('\n') + 1) + "```\n";
}

std::string Section(const ClassDescription& description) {
  const Layout& layout = description.layout();
  return "\n### " + Code(ToUtf8(layout.element)) + " (" + Code(std::string(description.name)) +
         ")\n\n" + std::string(description.help) + "\n" + AttributeTable(layout) +
         ChildList(layout) + Example(description);
}

}  // namespace

std::string XmlFormatDocument() {
  std::string text =
      "<!-- Written by praxen-generate from the descriptions of the classes. -->\n"
      "# The exchange format\n\n"
      "Documents are XML 1.0 in the namespace `PraxenSchema3_0`, which the root element declares "
      "as\n"
      "the default namespace. The schema is [PraxenSchema3_0.xsd](../schema/PraxenSchema3_0.xsd).\n"
      "The library writes attribute values between apostrophes, and CR LF after every element\n"
      "unless `maintenance.IncludeCRLFInXML` is false. Attributes and children are written in the\n"
      "order given here. Attributes are read in any order; children are read in this order, and "
      "one\n"
      "that stands out of it is passed over or, where nothing else may stand, refused with object\n"
      "error 605. An attribute without a default must be there when a document is read. In the\n"
      "examples every property is set.\n\n## Elements\n";
  std::multimap<std::u16string, const ClassDescription*> sections;
  for (const ClassDescription& description : AllClasses()) {
    if (description.layout == nullptr) continue;
    if (description.layout().container == Container::None) continue;
    sections.emplace(description.layout().element, &description);
  }
  for (const auto& [element, description] : sections) text += Section(*description);
  return text;
}

}  // namespace praxen::detail
