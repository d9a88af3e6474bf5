// What is registered of the library, as data.
#include "praxen/server/registration.h"

#include "praxen/automation/guid.h"
#include "praxen/core/ascii.h"
#include "praxen/core/text.h"
#include "praxen/describe/identifiers.h"
#include "praxen/factory/classes.h"

namespace praxen::detail {

namespace {

std::string ClassKey(const ClassDescription& description) {
  return "CLSID\\" + GuidToText(ClassId(description));
}

std::string InterfaceKey(const ClassDescription& description) {
  return "Interface\\" + GuidToText(InterfaceId(description));
}

std::string AllVersionsKey() { return "TypeLib\\" + GuidToText(TypeLibraryId()); }

// The registry spells the parts of a version as hexadecimal numbers.
constexpr std::u16string_view kVersionInRegistry = u"3.10";
static_assert(kTypeLibraryVersion == "3.16");

std::string TypeLibraryKey() { return AllVersionsKey() + "\\" + ToUtf8(kVersionInRegistry); }

using Values = std::vector<RegistryValue>;

void AppendClass(Values& values, const ClassDescription& description, const std::u16string& file) {
  const std::string key = ClassKey(description);
  const std::u16string name = WidenAscii(ProgId(description));
  const std::u16string id = WidenAscii(GuidToText(ClassId(description)));
  values.push_back({ProgId(description), "", name});
  values.push_back({ProgId(description) + "\\CLSID", "", id});
  values.push_back({key, "", name});
  values.push_back({key + "\\InprocServer32", "", file});
  values.push_back({key + "\\InprocServer32", "ThreadingModel", u"Apartment"});
  values.push_back({key + "\\ProgID", "", name});
  values.push_back({key + "\\Programmable", "", u""});
  values.push_back({key + "\\TypeLib", "", WidenAscii(GuidToText(TypeLibraryId()))});
  values.push_back({key + "\\Version", "", WidenAscii(kTypeLibraryVersion)});
}

// Interfaces cross apartments by the marshaler that works from the type library.
void AppendInterface(Values& values, const ClassDescription& description) {
  const std::string key = InterfaceKey(description);
  values.push_back({key, "", WidenAscii(InterfaceName(description))});
  values.push_back({key + "\\ProxyStubClsid32", "", WidenAscii(kAutomationProxy)});
  values.push_back({key + "\\TypeLib", "", WidenAscii(GuidToText(TypeLibraryId()))});
  values.push_back({key + "\\TypeLib", "Version", std::u16string(kVersionInRegistry)});
}

void AppendTypeLibrary(Values& values, const std::u16string& file) {
  const std::string key = TypeLibraryKey();
  values.push_back({key, "", WidenAscii(kTypeLibraryHelp)});
  values.push_back({key + "\\0\\win64", "", file});
  values.push_back({key + "\\FLAGS", "", u"0"});
  values.push_back({key + "\\HELPDIR", "", file.substr(0, file.find_last_of(u'\\'))});
}

}  // namespace

std::string ProgId(const ClassDescription& description) {
  return "PraxenHelper." + std::string(description.name);
}

std::vector<const ClassDescription*> CreatableClasses() {
  std::vector<const ClassDescription*> classes;
  for (const ClassDescription& description : AllClasses()) {
    if (description.create != nullptr) classes.push_back(&description);
  }
  return classes;
}

std::vector<RegistryValue> RegistryValues(const std::u16string& file) {
  Values values;
  for (const ClassDescription* const description : CreatableClasses()) {
    AppendClass(values, *description, file);
  }
  for (const ClassDescription& description : AllClasses()) AppendInterface(values, description);
  AppendTypeLibrary(values, file);
  return values;
}

std::vector<std::string> RegistryKeys() {
  std::vector<std::string> keys{TypeLibraryKey()};
  for (const ClassDescription* const description : CreatableClasses()) {
    keys.push_back(ProgId(*description));
    keys.push_back(ClassKey(*description));
  }
  for (const ClassDescription& description : AllClasses())
    keys.push_back(InterfaceKey(description));
  return keys;
}

std::vector<std::string> SharedRegistryKeys() {
  return {AllVersionsKey(), "TypeLib", "Interface", "CLSID"};
}

}  // namespace praxen::detail
