// Type information from the type library that the module carries as a resource, so that nothing has
// to be registered for it.
#include "praxen/describe/tear_off.h"

#include "praxen/automation/guard.h"
#include "praxen/automation/values.h"
#include "praxen/core/module_folder.h"
#include "praxen/describe/dispatch.h"
#include "praxen/describe/identifiers.h"

namespace praxen::describe {

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

// The description of a class or interface in the type library that this module carries.
HRESULT GetTypeInformation(REFGUID id, ITypeInfo** out) noexcept {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  return Guarded([&] {
    ITypeLib* const library = TypeLibrary();
    return library == nullptr ? TYPE_E_CANTLOADLIBRARY : library->GetTypeInfoOfGuid(id, out);
  });
}

class ClassInformation final : public TearOff<IProvideClassInfo2> {
 public:
  explicit ClassInformation(Object& object) : TearOff(object) {}

  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** out) override {
    return GetTypeInformation(ClassId(description()), out);
  }
  // The classes raise no events, so there is no default source.
  HRESULT STDMETHODCALLTYPE GetGUID(DWORD, GUID* out) override {
    if (out == nullptr) return E_POINTER;
    *out = GUID_NULL;
    return E_INVALIDARG;
  }
};

}  // namespace

}  // namespace praxen::describe

namespace praxen::detail::dispatch {

HRESULT GetTypeInfoCount(UINT* count) noexcept {
  if (count == nullptr) return E_POINTER;
  *count = 1;
  return S_OK;
}

HRESULT GetTypeInfo(const ClassDescription& description, UINT index, ITypeInfo** out) noexcept {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  return Guarded([&] { return GetTypeInformation(InterfaceId(description), out); });
}

}  // namespace praxen::detail::dispatch

namespace praxen::describe {

HRESULT MakeClassInformation(Object& object, REFIID iid, void** out) {
  if (iid != IID_IProvideClassInfo && iid != IID_IProvideClassInfo2) return E_NOINTERFACE;
  *out = new ClassInformation(object);
  return S_OK;
}

}  // namespace praxen::describe
