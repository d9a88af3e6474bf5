// The walk over members and layouts that fills an object.
#include "tests/support/example.h"

#include <algorithm>

#include "praxen/core/enumerations.h"
#include "praxen/describe/description.h"
#include "praxen/xml/xml_string_writer.h"

namespace praxen::detail {

namespace {

class Filler {
 public:
  void Fill(Object& object, int depth) {
    for (const Member& member : object.description().members) {
      if (member.storage != nullptr && member.put != nullptr) Set(object, member, depth);
    }
    FillList(object, depth);
  }

 private:
  void Set(Object& object, const Member& member, int depth) {
    void* const value = member.storage(object);
    switch (member.type.kind) {
      case ValueKind::Text:
        *static_cast<Text*>(value) =
            FromUtf8(std::string(member.name) + " " + std::to_string(++count_));
        break;
      case ValueKind::Boolean:
        *static_cast<bool*>(value) = !*static_cast<bool*>(value);
        break;
      case ValueKind::Integer:
        *static_cast<int32_t*>(value) = ++count_;
        break;
      case ValueKind::Double:
        *static_cast<double*>(value) = ++count_ + 0.25;
        break;
      case ValueKind::Enumeration:
        *static_cast<int32_t*>(value) = OtherConstant(member, *static_cast<int32_t*>(value));
        break;
      default:
        break;
    }
    if (member.type.kind == ValueKind::Object) FillHeld(object, member, depth);
  }

  static int32_t OtherConstant(const Member& member, int32_t value) {
    const auto constants = member.type.enumeration->constants;
    return std::ranges::find_if(
               constants,
               [&](const EnumerationConstant& constant) { return constant.value != value; })
        ->value;
  }

  void FillHeld(Object& object, const Member& member, int depth) {
    if (object.description().layout == nullptr) return;
    const auto& children = object.description().layout().children;
    const auto child = std::ranges::find(children, member.name, &Child::property);
    if (child == children.end()) return;
    FillBelow(child->heldOrCreated(object), depth);
  }

  // A list is on the level of its owner.
  void FillBelow(Object& object, int depth) {
    if (object.elements() != nullptr) return Fill(object, depth);
    if (depth > 0) return Fill(object, depth - 1);
    FillRequired(object);
  }

  void FillList(Object& list, int depth) {
    const ClassDescription& description = list.description();
    if (list.elements() == nullptr || description.layout == nullptr) return;
    for (const Choice& choice : description.layout().elements) {
      if (depth == 0) return;
      const Ref<Object> element = choice.create();
      Fill(*element, depth - 1);
      list.Append(element);
    }
  }

  int32_t count_ = 0;
};

}  // namespace

void FillExample(Object& object, int depth) { Filler().Fill(object, depth); }

void FillRequired(Object& object) {
  if (object.description().layout == nullptr) return;
  for (const Attribute& attribute : object.description().layout().attributes) {
    if (attribute.rule != Rule::Required) continue;
    *static_cast<Text*>(attribute.storage(object)) = FromUtf8(attribute.property);
  }
}

std::string ExampleDocument(Object& object) {
  XMLStringWriter writer;
  writer.WriteStartDocument();
  object.IsRoot = true;
  object.WriteXML(writer);
  object.IsRoot = false;
  std::string document = ToUtf8(writer.ToXMLString());
  std::erase(document, '\r');
  return document;
}

}  // namespace praxen::detail
