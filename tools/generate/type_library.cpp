// Interfaces, classes and enumerations in the interface definition language.
#include "tools/generate/type_library.h"

#include <algorithm>
#include <string>

#include "praxen/automation/guid.h"
#include "praxen/describe/description.h"
#include "praxen/describe/identifiers.h"
#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"

namespace praxen::detail {

namespace {

std::string Id(const GUID& id) {
  const std::string text = GuidToText(id);
  return "uuid(" + text.substr(1, text.size() - 2) + ")";
}

std::string Help(std::string_view help) {
  return help.empty() ? "" : ", helpstring(\"" + std::string(help) + "\")";
}

std::string IdOf(const Member& member) {
  if (member.id == kEnumeratorId) return "id(DISPID_NEWENUM), hidden";
  return "id(" + std::to_string(member.id) + ")";
}

std::string Arguments(const Member& member) {
  std::string text;
  for (const MemberParameter& parameter : member.parameters) {
    text += (parameter.byReference ? "[in, out] " : "[in] ") + TypeLibraryType(parameter.type) +
            (parameter.byReference ? "* " : " ") + std::string(parameter.name) + ", ";
  }
  return text;
}

std::string Function(const Member& member, const std::string& attributes, std::string arguments) {
  if (arguments.ends_with(", ")) arguments.resize(arguments.size() - 2);
  if (arguments.empty()) arguments = "void";
  return "    [" + IdOf(member) + attributes + Help(member.help) + "]\n    HRESULT " +
         std::string(member.name) + "(" + arguments + ");\n";
}

std::string Getter(const Member& member) {
  std::string arguments = Arguments(member);
  if (member.type.kind != ValueKind::None) {
    arguments += "[out, retval] " + TypeLibraryType(member.type) + "* result";
  }
  return Function(member, member.isMethod ? "" : ", propget", arguments);
}

std::string Setter(const Member& member) {
  if (member.put == nullptr) return {};
  return Function(member, IsObject(member.type) ? ", propputref" : ", propput",
                  "[in] " + TypeLibraryType(member.type) + " value");
}

std::string InterfaceOf(const ClassDescription& description) {
  std::string text = "  [object, " + Id(InterfaceId(description)) +
                     ", dual, oleautomation, nonextensible" + Help(description.help) +
                     "]\n  interface " + InterfaceName(description) + " : IDispatch {\n";
  for (const Member& member : description.members) {
    text += member.putFirst ? Setter(member) + Getter(member) : Getter(member) + Setter(member);
  }
  return text + "  }\n\n";
}

std::string CoclassOf(const ClassDescription& description) {
  std::string text = "  [" + Id(ClassId(description)) +
                     (description.create == nullptr ? ", noncreatable" : "") +
                     Help(description.help) + "]\n  coclass " + std::string(description.name) +
                     " {\n    [default] interface " + InterfaceName(description) + ";\n";
  if (description.kind != nullptr)
    text += "    interface " + InterfaceName(*description.kind) + ";\n";
  return text + "  }\n\n";
}

std::string EnumerationOf(const EnumerationDescription& enumeration) {
  const std::string name(enumeration.name);
  std::string text = "  typedef [" + Id(EnumerationId(enumeration)) + Help(enumeration.help) +
                     "]\n  enum " + name + " {\n";
  for (const EnumerationConstant& constant : enumeration.constants) {
    text += "    " + std::string(constant.name) + " = " + std::to_string(constant.value) + ",\n";
  }
  text.erase(text.size() - 2, 1);
  return text + "  } " + name + ";\n\n";
}

}  // namespace

std::string TypeLibraryType(const ValueType& type) {
  using std::string, std::type_identity;
  return VisitType(
      type, Overloaded{[](type_identity<Text>) -> string { return "BSTR"; },
                       [](type_identity<bool>) -> string { return "VARIANT_BOOL"; },
                       [](type_identity<int32_t>) -> string { return "LONG"; },
                       [](type_identity<double>) -> string { return "double"; },
                       [&](type_identity<EnumerationDescription>) {
                         return string(type.enumeration->name);
                       },
                       [&](type_identity<Object>) { return InterfaceName(type.object()) + "*"; },
                       [](type_identity<AnyValue>) -> string { return "VARIANT"; },
                       [](type_identity<Enumerator>) -> string { return "IUnknown*"; },
                       [](type_identity<void>) -> string { return "void"; }});
}

std::string GenerateTypeLibrary() {
  std::string text =
      "// Written by praxen-generate from the descriptions of the classes.\n"
      "import \"oaidl.idl\";\n\n"
      "[" +
      Id(TypeLibraryId()) + ", version(" + std::string(kTypeLibraryVersion) + ")" +
      Help(kTypeLibraryHelp) + "]\nlibrary PraxenHelper {\n  importlib(\"stdole2.tlb\");\n\n";
  for (const EnumerationDescription* const enumeration : AllEnumerations()) {
    text += EnumerationOf(*enumeration);
  }
  for (const ClassDescription& description : AllClasses())
    text += "  interface " + InterfaceName(description) + ";\n";
  text += "\n";
  for (const ClassDescription& description : AllClasses()) text += InterfaceOf(description);
  for (const ClassDescription& description : AllClasses()) text += CoclassOf(description);
  text.pop_back();
  return text + "}\n";
}

}  // namespace praxen::detail
