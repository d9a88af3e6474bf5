// Type information from the type library that the module carries as a resource, so that nothing has
// to be registered for it.
#include "praxen/describe/tear_off.h"
#include "praxen/platform/automation_guard.h"
#include "praxen/platform/automation_values.h"
#include "praxen/platform/module_folder.h"

namespace praxen {

namespace {

ComPointer<ITypeLib> LoadTypeLibrary() {
  ComPointer<ITypeLib> library;
  LoadTypeLibEx(ModuleFile().c_str(), REGKIND_NONE, library.Receive());
  return library;
}

// Null when the module carries none, as a program that is linked with the library's objects.
ITypeLib* TypeLibrary() {
  // Kept until the process ends: at unloading, the module that implements it may be gone.
  static ITypeLib* const library = LoadTypeLibrary().Detach();
  return library;
}

}  // namespace

HRESULT GetTypeInformation(REFGUID id, ITypeInfo** out) noexcept {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  return Guarded([&] {
    ITypeLib* const library = TypeLibrary();
    return library == nullptr ? TYPE_E_CANTLOADLIBRARY : library->GetTypeInfoOfGuid(id, out);
  });
}

}  // namespace praxen
