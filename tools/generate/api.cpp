// The reference of the published classes.
#include <algorithm>

#include "praxen/automation/values.h"
#include "praxen/core/enumerations.h"
#include "praxen/describe/description.h"
#include "praxen/factory/classes.h"
#include "tools/generate/documents.h"

namespace praxen::detail {

namespace {

std::string Code(std::string_view text) { return "`" + std::string(text) + "`"; }

std::string TypeName(const ValueType& type) {
  switch (type.kind) {
    case ValueKind::Text:
      return "text";
    case ValueKind::Boolean:
      return "boolean";
    case ValueKind::Integer:
      return "integer";
    case ValueKind::Double:
      return "double";
    case ValueKind::Enumeration:
      return Code(type.enumeration->name);
    case ValueKind::Object:
      return Code(type.object().name);
    case ValueKind::Any:
      return "any value";
    case ValueKind::Enumerator:
      return "enumerator";
    case ValueKind::None:
      break;
  }
  return "";
}

std::string CreationValue(const Member& member, Object& created) {
  const void* const value = member.storage(created);
  switch (member.type.kind) {
    case ValueKind::Text: {
      const Text& text = *static_cast<const Text*>(value);
      return text.empty() ? "empty" : "\"" + ToUtf8(text) + "\"";
    }
    case ValueKind::Boolean:
      return *static_cast<const bool*>(value) ? "true" : "false";
    case ValueKind::Integer:
      return std::to_string(*static_cast<const int32_t*>(value));
    case ValueKind::Double:
      return std::to_string(static_cast<int>(*static_cast<const double*>(value)));
    case ValueKind::Enumeration: {
      const auto constants = member.type.enumeration->constants;
      const auto found = std::ranges::find(constants, *static_cast<const int32_t*>(value),
                                           &EnumerationConstant::value);
      return Code(found->name);
    }
    default:
      break;
  }
  if (created.description().layout == nullptr) return "new";
  const auto& children = created.description().layout().children;
  const auto child = std::ranges::find(children, member.name, &Child::property);
  return child != children.end() && child->held(created) == nullptr ? "none" : "new";
}

// The value of a property behind a pair of functions.
std::string ComputedValue(const Member& member, Object& created) {
  Variant value;
  member.invokeGet(created, nullptr, value);
  if (member.type.kind == ValueKind::Boolean)
    return value.boolVal == VARIANT_FALSE ? "false" : "true";
  return value.View().empty() ? "empty" : "\"" + ToUtf8(value.View()) + "\"";
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
  return member.storage == nullptr ? ComputedValue(member, *created)
                                   : CreationValue(member, *created);
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
      "## Classes\n";
  for (const ClassDescription& description : AllClasses()) text += Section(description);
  text += "\n## Enumerations\n";
  for (const EnumerationDescription* const enumeration : AllEnumerations()) {
    text += EnumerationSection(*enumeration);
  }
  return text;
}

}  // namespace praxen::detail
