// A program that writes the schema of one document with the children of every element named, as a
// generator of classes needs it.
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <string>

#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"
#include "tools/generate/schema.h"

namespace praxen::detail {
namespace {

using Names = std::set<std::u16string>;
using Children = std::map<std::u16string, Names>;

void AddElements(Names& names, const Layout& list) {
  for (const Choice& choice : list.elements) names.insert(choice.elementName());
}

void AddChild(Children& children, const Layout& layout, const Child& child) {
  Names& names = children[layout.element];
  for (const ElementShape& shape : child.shapes) names.insert(shape.name);
  for (const ElementShape& shape : child.shapes) {
    if (shape.content != ElementShape::Content::Children) continue;
    children[shape.name] = names;
    children[shape.name].insert(layout.element);
  }
  if (child.kind == ChildKind::Text) names.insert(child.name);
  if (!child.inner.empty()) children[child.name].insert(child.inner);
  if (!IsObject(child.type)) return;
  const Layout& held = child.type.object().layout();
  if (child.kind == ChildKind::Items || held.container == Container::None) {
    AddElements(names, held);
  } else {
    names.insert(held.element);
  }
}

Children CollectChildren() {
  Children children;
  for (const ClassDescription& description : AllClasses()) {
    if (description.layout == nullptr) continue;
    const Layout& layout = description.layout();
    for (const Child& child : layout.children) AddChild(children, layout, child);
    AddElements(children[layout.element], layout);
  }
  return children;
}

Names Reachable(const Children& children, const std::u16string& root) {
  Names reached{root};
  for (Names next{root}; !next.empty();) {
    const std::u16string name = *next.begin();
    next.erase(next.begin());
    const auto found = children.find(name);
    if (found == children.end()) continue;
    for (const std::u16string& child : found->second) {
      if (reached.insert(child).second) next.insert(child);
    }
  }
  return reached;
}

std::string Attributes(const ElementDeclaration& element) {
  std::string text;
  for (const AttributeDeclaration& attribute : element.attributes) {
    text += "<xs:attribute name='" + ToUtf8(attribute.name) + "' type='xs:string'";
    if (attribute.required) text += " use='required'";
    if (attribute.defaultValue) text += " default='" + ToUtf8(*attribute.defaultValue) + "'";
    text += "/>";
  }
  return text;
}

std::string Content(const ElementDeclaration& element, const Names& children) {
  if (element.content == ElementDeclaration::Content::Text) {
    return "<xs:simpleContent><xs:extension base='xs:string'>" + Attributes(element) +
           "</xs:extension></xs:simpleContent>";
  }
  std::string text = "<xs:choice minOccurs='0' maxOccurs='unbounded'>";
  for (const std::u16string& child : children) text += "<xs:element ref='" + ToUtf8(child) + "'/>";
  return text + "</xs:choice>" + Attributes(element);
}

std::string ClosedSchema(const std::u16string& root) {
  std::string schema =
      "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' xmlns='PraxenSchema3_0' "
      "targetNamespace='PraxenSchema3_0' elementFormDefault='qualified'>\n";
  const Children children = CollectChildren();
  const auto declarations = DeclareElements();
  for (const std::u16string& name : Reachable(children, root)) {
    const std::string utf8 = ToUtf8(name);
    const auto found = children.find(name);
    schema += "<xs:complexType name='" + utf8 + "Content'>" +
              Content(declarations.at(name), found == children.end() ? Names() : found->second) +
              "</xs:complexType>\n<xs:element name='" + utf8 + "' type='" + utf8 + "Content'/>\n";
  }
  return schema + "</xs:schema>\n";
}

}  // namespace
}  // namespace praxen::detail

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: praxen_closed_schema ROOT FILE\n";
    return 2;
  }
  std::ofstream(argv[2]) << praxen::detail::ClosedSchema(praxen::FromUtf8(argv[1]));
}
