// The completion of a layout: places in the object, names, members, and what a new object holds.
#include "praxen/describe/layout.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

#include "praxen/describe/description.h"
#include "praxen/describe/element_markup.h"
#include "praxen/describe/reflection.h"
#include "praxen/describe/xml_writing.h"
#include "praxen/xml/xml_name.h"

namespace praxen::describe {

namespace {

std::ptrdiff_t OffsetIn(const Object& object, const void* value) {
  return static_cast<const std::byte*>(value) - reinterpret_cast<const std::byte*>(&object);
}

// Null for what a class keeps without publishing it.
const Member* PublishedMember(const Object& created, std::string_view property) {
  const Members& members = created.description().members;
  const auto found = std::ranges::find(members, property, &Member::name);
  return found == members.end() ? nullptr : &*found;
}

void CompleteAttribute(Attribute& attribute, Object& created) {
  const void* const value = attribute.storage(created);
  attribute.offset = OffsetIn(created, value);
  attribute.member = PublishedMember(created, attribute.property);
  attribute.xmlName = InternXmlName(attribute.name);
  attribute.canBeAbsent = attribute.rule == Rule::Optional || attribute.rule == Rule::UnlessEmpty;
  if (attribute.rule == Rule::UnlessEmpty) return;
  attribute.absentText = AttributeText(attribute, value);
  VisitValue(attribute.type, value,
             Overloaded{[](const Text&) {}, [](const double&) {},
                        [&](const bool& isTrue) { attribute.absentNumber = isTrue; },
                        [&](const int32_t& number) { attribute.absentNumber = number; }});
}

bool IsEmptiedByAbsence(const Attribute& attribute, Object& created) {
  return attribute.rule == Rule::UnlessEmpty && attribute.type.kind == ValueKind::Text &&
         !static_cast<const Text*>(ValueOf(attribute, created))->empty();
}

void CompleteChild(Child& child, Object& created) {
  if (child.storage != nullptr) {
    child.offset = OffsetIn(created, child.storage(created));
    child.member = PublishedMember(created, child.property);
  }
  if (child.kind == ChildKind::List || child.kind == ChildKind::Items) {
    child.leaveOutEmpty |= child.type.object().layout().container != Container::Always;
  }
  if (child.elementName != nullptr) child.name = child.elementName();
  if (!child.name.empty()) child.xmlName = InternXmlName(child.name);
  if (child.kind == ChildKind::Text || child.kind == ChildKind::Content) {
    child.markup = std::make_shared<const TextMarkup>(child);
  }
}

}  // namespace

Layout CompleteLayout(Layout layout, std::u16string element, Object& created) {
  layout.element = std::move(element);
  if (layout.attributes.size() > std::numeric_limits<uint64_t>::digits) {
    throw std::logic_error("a class has more attributes than bits that tell of them");
  }
  uint64_t bit = 1;
  for (Attribute& attribute : layout.attributes) {
    CompleteAttribute(attribute, created);
    if (attribute.isRequired()) layout.givenAttributes |= bit;
    if (IsEmptiedByAbsence(attribute, created)) layout.emptiedAttributes |= bit;
    bit <<= 1;
    if (attribute.rule == Rule::Required && attribute.type.kind == ValueKind::Text) {
      layout.requiredTexts.push_back(attribute.offset);
    }
  }
  for (Child& child : layout.children) CompleteChild(child, created);
  for (Choice& choice : layout.elements) {
    choice.xmlName = InternXmlName(choice.elementName());
    choice.description = &choice.object();
  }
  layout.markup = std::make_shared<const ElementMarkup>(layout, created);
  return layout;
}

}  // namespace praxen::describe
