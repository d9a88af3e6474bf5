// Registration in the user's file of classes.
#include "praxen/server/registration_posix.h"

#include "praxen/automation/class_registry_posix.h"
#include "praxen/automation/guard.h"
#include "praxen/core/module_folder.h"
#include "praxen/describe/identifiers.h"
#include "praxen/server/registration.h"

namespace praxen::detail {

HRESULT RegisterServer(const std::filesystem::path& server, std::string* reason) noexcept {
  return Guarded([&] {
    std::vector<ClassEntry> entries;
    for (const ClassDescription* const description : CreatableClasses()) {
      entries.push_back({ProgId(*description), ClassId(*description)});
    }
    return RegisterClasses(entries, server, reason);
  });
}

HRESULT UnregisterServer(std::string* reason) noexcept {
  return Guarded([&] {
    std::vector<CLSID> identifiers;
    for (const ClassDescription* const description : CreatableClasses()) {
      identifiers.push_back(ClassId(*description));
    }
    return UnregisterClasses(identifiers, reason);
  });
}

HRESULT Register(RegistrationScope) noexcept {
  return Guarded([] { return RegisterServer(ModuleFile()); });
}

HRESULT Unregister(RegistrationScope) noexcept { return UnregisterServer(); }

}  // namespace praxen::detail
