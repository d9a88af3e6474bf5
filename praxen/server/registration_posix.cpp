// Registration in the user's file of classes.
#include "praxen/automation/class_registry_posix.h"
#include "praxen/automation/guard.h"
#include "praxen/core/module_folder.h"
#include "praxen/describe/identifiers.h"
#include "praxen/server/registration.h"

namespace praxen::detail {

HRESULT Register(RegistrationScope) noexcept {
  return Guarded([] {
    std::vector<ClassEntry> entries;
    for (const ClassDescription* const description : CreatableClasses()) {
      entries.push_back({ProgId(*description), ClassId(*description)});
    }
    return RegisterClasses(entries, ModuleFile());
  });
}

HRESULT Unregister(RegistrationScope) noexcept {
  return Guarded([] {
    std::vector<CLSID> identifiers;
    for (const ClassDescription* const description : CreatableClasses()) {
      identifiers.push_back(ClassId(*description));
    }
    return UnregisterClasses(identifiers);
  });
}

}  // namespace praxen::detail
