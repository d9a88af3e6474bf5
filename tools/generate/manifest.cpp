// The manifest of the library, from the descriptions of its classes.
#include "tools/generate/manifest.h"

#include "praxen/automation/guid.h"
#include "praxen/describe/identifiers.h"
#include "praxen/factory/classes.h"
#include "praxen/server/registration.h"

namespace praxen::detail {

namespace {

std::string Quoted(std::string_view name, const std::string& value) {
  return " " + std::string(name) + "=\"" + value + "\"";
}

std::string ClassElement(const ClassDescription& description) {
  return "    <comClass" + Quoted("clsid", GuidToText(ClassId(description))) +
         Quoted("progid", ProgId(description)) + Quoted("threadingModel", "Apartment") +
         Quoted("tlbid", GuidToText(TypeLibraryId())) + "/>\n";
}

std::string InterfaceElement(const ClassDescription& description) {
  return "  <comInterfaceExternalProxyStub" + Quoted("name", InterfaceName(description)) +
         Quoted("iid", GuidToText(InterfaceId(description))) +
         Quoted("baseInterface", GuidToText(IID_IDispatch)) +
         Quoted("proxyStubClsid32", std::string(kAutomationProxy)) +
         Quoted("tlbid", GuidToText(TypeLibraryId())) + "/>\n";
}

}  // namespace

std::string GenerateManifest() {
  const std::string version(kTypeLibraryVersion);
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
      "<!-- Written by praxen-generate from the descriptions of the classes. -->\n"
      "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n"
      "  <assemblyIdentity type=\"win32\" name=\"PraxenHelper\"" +
      Quoted("version", version + ".0.0") +
      " processorArchitecture=\"amd64\"/>\n"
      "  <file name=\"PraxenHelper.dll\">\n" +
      "    <typelib" + Quoted("tlbid", GuidToText(TypeLibraryId())) + Quoted("version", version) +
      " helpdir=\"\"/>\n";
  for (const ClassDescription* const description : CreatableClasses()) {
    text += ClassElement(*description);
  }
  text += "  </file>\n";
  for (const ClassDescription& description : AllClasses()) text += InterfaceElement(description);
  return text + "</assembly>\n";
}

}  // namespace praxen::detail
