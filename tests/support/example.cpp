// The walk over members and layouts that fills an object.
#include "tests/support/example.h"

#include <algorithm>

#include "praxen/core/enumerations.h"
#include "praxen/describe/reflection.h"
#include "praxen/xml/xml_string_writer.h"

namespace praxen::detail {

namespace {

class Filler {
 public:
  void Fill(Object& object, int depth) {
    for (const Member& member : object.description().members) {
      if (member.put != nullptr) Set(object, member, depth);
    }
    FillList(object, depth);
  }

 private:
  void Set(Object& object, const Member& member, int depth) {
    if (IsKeptValue(member)) return SetValue(object, member);
    // What is in no element may lead back to where it came from.
    if (ChildOf(object.description(), member) != nullptr) {
      FillBelow(HeldOrCreated(object, member), depth);
    }
  }

  void SetValue(Object& object, const Member& member) {
    ChangeProperty(
        object, member,
        Overloaded{[&](Text& value) {
                     value = FromUtf8(std::string(member.name) + " " + std::to_string(++count_));
                   },
                   [](bool& value) { value = !value; }, [&](int32_t& value) { value = ++count_; },
                   [&](double& value) { value = ++count_ + 0.25; },
                   [](const EnumerationValue<int32_t>& value) { ChooseOther(value); }});
  }

  static void ChooseOther(const EnumerationValue<int32_t>& value) {
    const auto isOther = [&](const EnumerationConstant& c) { return c.value != value.number; };
    value.number = std::ranges::find_if(value.description.constants, isOther)->value;
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
  for (const Attribute& attribute : AttributesOf(object.description())) {
    if (attribute.rule != Rule::Required) continue;
    VisitValue(attribute.type, ValueOf(attribute, object),
               Overloaded{[&](Text& text) {
                            if (text.empty()) text = FromUtf8(attribute.property);
                          },
                          [](auto&&) {}});
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
