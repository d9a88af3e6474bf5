// Declarations of elements and their form as XML Schema.
#include "tools/generate/schema.h"

#include <algorithm>
#include <stdexcept>

#include "praxen/describe/description.h"
#include "praxen/factory/classes.h"
#include "praxen/xml/xml_escape.h"

namespace praxen::detail {

namespace {

using Content = ElementDeclaration::Content;
using Declarations = std::map<std::u16string, ElementDeclaration>;

// Attributes that only one of two classes knows must not be required of the other's elements.
void Merge(ElementDeclaration& into, const ElementDeclaration& other) {
  for (const AttributeDeclaration& attribute : other.attributes) {
    const auto same =
        std::ranges::find(into.attributes, attribute.name, &AttributeDeclaration::name);
    if (same == into.attributes.end()) {
      into.attributes.push_back(attribute);
    } else if (*same != attribute) {
      throw std::logic_error("two declarations of " + ToUtf8(attribute.name));
    }
  }
}

void Declare(Declarations& declarations, const ElementDeclaration& declaration) {
  const auto [place, isNew] = declarations.try_emplace(declaration.name, declaration);
  if (isNew) return;
  if (place->second.content != declaration.content) {
    throw std::logic_error("two contents of " + ToUtf8(declaration.name));
  }
  Merge(place->second, declaration);
}

void DeclareText(Declarations& declarations, const Child& child) {
  if (child.inner.empty()) return Declare(declarations, {child.name, Content::Text});
  Declare(declarations, {child.name});
  Declare(declarations, {child.inner, Content::Text});
}

void DeclareShape(Declarations& declarations, const ElementShape& shape) {
  const bool isText = shape.content == ElementShape::Content::Text;
  ElementDeclaration declaration{shape.name, isText ? Content::Text : Content::Children};
  for (const std::u16string& name : shape.attributes)
    declaration.attributes.push_back({name, true});
  Declare(declarations, declaration);
}

void DeclareChild(Declarations& declarations, const Child& child) {
  if (child.kind == ChildKind::Text) DeclareText(declarations, child);
  for (const ElementShape& shape : child.shapes) DeclareShape(declarations, shape);
}

Content ContentOf(const Layout& layout) {
  for (const Child& child : layout.children) {
    if (child.kind == ChildKind::Content) return Content::Text;
    if (child.isMarkup) return Content::Markup;
  }
  return Content::Children;
}

void DeclareClass(Declarations& declarations, const Layout& layout) {
  if (layout.container != Container::None) {
    ElementDeclaration declaration{layout.element, ContentOf(layout)};
    std::ranges::transform(layout.attributes, std::back_inserter(declaration.attributes),
                           DeclareAttribute);
    Declare(declarations, declaration);
  }
  for (const Child& child : layout.children) DeclareChild(declarations, child);
}

std::string Attributes(const ElementDeclaration& element, const std::string& indent) {
  std::string text;
  for (const AttributeDeclaration& attribute : element.attributes) {
    text += indent + "<xs:attribute name=\"" + ToUtf8(attribute.name) + "\" type=\"xs:string\"";
    if (attribute.required) text += " use=\"required\"";
    if (attribute.defaultValue)
      text += " default=\"" + ToUtf8(EscapeXml(*attribute.defaultValue, kEscapedInValues)) + "\"";
    text += "/>\n";
  }
  return text;
}

std::string Wildcard(bool looked_into) {
  return std::string(
             "      <xs:sequence>\n        <xs:any namespace=\"##any\" processContents=\"") +
         (looked_into ? "lax" : "skip") +
         "\" minOccurs=\"0\" maxOccurs=\"unbounded\"/>\n      </xs:sequence>\n";
}

std::string Element(const ElementDeclaration& element) {
  const std::string name = "  <xs:element name=\"" + ToUtf8(element.name) + "\"";
  if (element.content == Content::Text && element.attributes.empty()) {
    return name + " type=\"xs:string\"/>\n";
  }
  if (element.content == Content::Text) {
    return name +
           ">\n    <xs:complexType>\n      <xs:simpleContent>\n"
           "        <xs:extension base=\"xs:string\">\n" +
           Attributes(element, "          ") +
           "        </xs:extension>\n      </xs:simpleContent>\n    </xs:complexType>\n"
           "  </xs:element>\n";
  }
  const bool isMarkup = element.content == Content::Markup;
  return name +
         (isMarkup ? ">\n    <xs:complexType mixed=\"true\">\n" : ">\n    <xs:complexType>\n") +
         Wildcard(!isMarkup) + Attributes(element, "      ") +
         "    </xs:complexType>\n  </xs:element>\n";
}

}  // namespace

AttributeDeclaration DeclareAttribute(const Attribute& attribute) {
  AttributeDeclaration declaration{attribute.name};
  declaration.required = attribute.isRequired();
  if (attribute.rule != Rule::Required && attribute.rule != Rule::Always) {
    declaration.defaultValue = std::u16string(attribute.absentText.view());
  }
  return declaration;
}

std::map<std::u16string, ElementDeclaration> DeclareElements() {
  Declarations declarations;
  for (const ClassDescription& description : AllClasses()) {
    if (description.layout != nullptr) DeclareClass(declarations, description.layout());
  }
  return declarations;
}

std::string GenerateSchema() {
  std::string schema =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<!-- Written by praxen-generate from the descriptions of the classes. -->\n"
      "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\"\n"
      "           targetNamespace=\"PraxenSchema3_0\" elementFormDefault=\"qualified\">\n";
  for (const auto& [name, element] : DeclareElements()) schema += Element(element);
  return schema + "</xs:schema>\n";
}

}  // namespace praxen::detail
