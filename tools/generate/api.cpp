// The reference of the published classes.
#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "praxen/core/enumerations.h"
#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"
#include "tools/generate/documents.h"

namespace praxen::detail {

namespace {

std::string Code(std::string_view text) { return "`" + std::string(text) + "`"; }

std::string TypeName(const ValueType& type) {
  using std::string, std::type_identity;
  return VisitType(
      type, Overloaded{
                [](type_identity<Text>) -> string { return "text"; },
                [](type_identity<bool>) -> string { return "boolean"; },
                [](type_identity<int32_t>) -> string { return "integer"; },
                [](type_identity<double>) -> string { return "double"; },
                [&](type_identity<EnumerationDescription>) { return Code(type.enumeration->name); },
                [&](type_identity<Object>) { return Code(type.object().name); },
                [](type_identity<AnyValue>) -> string { return "any value"; },
                [](type_identity<Enumerator>) -> string { return "enumerator"; },
                [](type_identity<void>) { return string(); }});
}

std::string NameOf(const EnumerationValue<const int32_t>& value) {
  return Code(
      std::ranges::find(value.description.constants, value.number, &EnumerationConstant::value)
          ->name);
}

std::string CreationValue(const Member& member, Object& created) {
  if (IsKeptObject(member)) return Held(created, member) == nullptr ? "none" : "new";
  std::string text;
  VisitProperty(
      created, member,
      Overloaded{
          [&](const Text& value) { text = value.empty() ? "empty" : "\"" + ToUtf8(value) + "\""; },
          [&](const bool& value) { text = value ? "true" : "false"; },
          [&](const int32_t& value) { text = std::to_string(value); },
          [&](const double& value) { text = std::to_string(static_cast<int>(value)); },
          [&](const EnumerationValue<const int32_t>& value) { text = NameOf(value); }});
  return text;
}

std::string Signature(const Member& member) {
  if (!member.isMethod && member.parameters.empty()) return Code(member.name);
  std::string parameters;
  for (const MemberParameter& parameter : member.parameters) {
    parameters += (parameters.empty() ? "" : ", ") + std::string(parameter.name);
  }
  return Code(std::string(member.name) + "(" + parameters + ")");
}

std::string Access(const Member& member, Object* created) {
  if (member.isMethod) return "method";
  if (member.id == kDefaultMemberId && member.hasFixedId) return "default member";
  if (member.id == kEnumeratorId) return "enumerator";
  if (member.put == nullptr) return "read only";
  if (created == nullptr) return "";
  return CreationValue(member, *created);
}

std::string Section(const ClassDescription& description) {
  const Ref<Object> created = description.create == nullptr ? nullptr : description.create();
  std::string text =
      "\n### " + std::string(description.name) + "\n\n" + std::string(description.help) + "\n";
  if (description.create == nullptr) text += "Clients cannot create it.\n";
  if (description.kind != nullptr) text += "Implements " + Code(description.kind->name) + ".\n";
  if (description.layout != nullptr && description.layout().container != Container::None) {
    text += "Written as " + Code(ToUtf8(description.layout().element)) +
            ", see [the format](xml-format.md).\n";
  }
  text += "\n| Member | Type | At creation | |\n| --- | --- | --- | --- |\n";
  for (const Member& member : description.members) {
    text += "| " + Signature(member) + " | " + TypeName(member.type) + " | " +
            Access(member, created.get()) + " | " + std::string(member.help) + " |\n";
  }
  return text;
}

// The class of a list's elements; null for a class that is no list.
const ClassDescription* ElementClass(const ClassDescription& description) {
  const auto item = std::ranges::find_if(description.members, [](const Member& member) {
    return member.id == kDefaultMemberId && member.hasFixedId;
  });
  return item == description.members.end() ? nullptr : &item->type.object();
}

std::string Names(const std::vector<const ClassDescription*>& classes) {
  std::string names;
  for (const ClassDescription* const each : classes) {
    names += (names.empty() ? "" : ", ") + Code(each->name);
  }
  return names;
}

// The objects that a class keeps by name, or the elements of a list that no class keeps.
std::string HeldObjects(const ClassDescription& description,
                        const std::set<const ClassDescription*>& kept) {
  if (description.isKind) return Names(ClassesOf(description));
  if (const ClassDescription* const element = ElementClass(description)) {
    return kept.contains(&description) ? "" : "elements of " + Code(element->name);
  }
  std::string held;
  for (const Member& member : description.members) {
    if (!IsKeptObject(member)) continue;
    held += (held.empty() ? "" : "; ") + Code(member.name);
    const ClassDescription* const element = ElementClass(member.type.object());
    if (element != nullptr) held += " of " + Code(element->name);
  }
  return held;
}

std::string Map() {
  std::set<const ClassDescription*> kept;
  for (const ClassDescription& description : AllClasses()) {
    for (const Member& member : description.members) {
      if (IsKeptObject(member)) kept.insert(&member.type.object());
    }
  }
  std::string text;
  for (const ClassDescription& description : AllClasses()) {
    const std::string held = HeldObjects(description, kept);
    if (!held.empty()) text += "- " + Code(description.name) + ": " + held + "\n";
  }
  return text;
}

std::string EnumerationSection(const EnumerationDescription& enumeration) {
  std::string text = "\n### " + std::string(enumeration.name) + "\n\n" +
                     std::string(enumeration.help) +
                     "\n\n| Constant | Value | Text in documents |\n| --- | --- | --- |\n";
  for (const EnumerationConstant& constant : enumeration.constants) {
    text += "| " + Code(constant.name) + " | " + std::to_string(constant.value) + " | " +
            Code(ToUtf8(constant.text)) + " |\n";
  }
  const auto otherwise = std::to_string(enumeration.otherwise);
  if (enumeration.spellings.empty()) {
    return text + "\nA text reads as its first constant, any other text as " + otherwise + ".\n";
  }
  text += "\nIn any letter case";
  for (const EnumerationConstant& spelling : enumeration.spellings) {
    text += ", " + Code(ToUtf8(spelling.text)) + " reads as " + std::to_string(spelling.value);
  }
  return text + "; any other text as " + otherwise + ".\n";
}

}  // namespace

std::string ApiDocument() {
  std::string text =
      "<!-- Written by praxen-generate from the descriptions of the classes. -->\n"
      "# Classes and enumerations\n\n"
      "Members stand in the order of the class's interface. In C++ a property is a data member of\n"
      "that name, a text is a `praxen::Text`, and an object is held by a `praxen::Ref`. Creating\n"
      "members of `ObjectFactory` and of the lists set the properties named by their "
      "parameters.\n\n"
      "Numbers have no unit where none is named. Where the engineering tool's is, the library\n"
      "keeps the number as it is and converts nothing.\n\n"
      "## What holds what\n\n"
      "Lists are followed by the class of their elements; a kind, such as `ICodeBlock`, by the\n"
      "classes that implement it.\n\n";
  text += Map() + "\n## Classes\n";
  for (const ClassDescription& description : AllClasses()) text += Section(description);
  text += "\n## Enumerations\n";
  for (const EnumerationDescription* const enumeration : AllEnumerations()) {
    text += EnumerationSection(*enumeration);
  }
  return text;
}

}  // namespace praxen::detail
