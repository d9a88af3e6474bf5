// Class objects: one is made for each request and keeps the library loaded as objects do.
#include "praxen/server/class_object.h"

#include <atomic>

#include "praxen/automation/counted.h"
#include "praxen/automation/guard.h"
#include "praxen/automation/values.h"
#include "praxen/core/counters.h"
#include "praxen/describe/identifiers.h"
#include "praxen/factory/classes.h"

namespace praxen::detail {

namespace {

constinit std::atomic<int32_t> locks = 0;

class ClassObject final : public Counted<IClassFactory> {
 public:
  explicit ClassObject(const ClassDescription& description) : description_(description) {
    CountModuleObject(1);
  }
  ~ClassObject() override { CountModuleObject(-1); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    if (iid != IID_IUnknown && iid != IID_IClassFactory) return E_NOINTERFACE;
    AddRef();
    *out = this;
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** out) override {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    return Guarded([&] {
      const Ref<Object> object = description_.create();
      return reinterpret_cast<IUnknown*>(static_cast<Interface*>(object.get()))
          ->QueryInterface(iid, out);
    });
  }
  // A lock that was never set cannot be taken away.
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
    if (lock != FALSE) {
      ++locks;
      return S_OK;
    }
    int32_t held = locks;
    while (held != 0 && !locks.compare_exchange_weak(held, held - 1)) {
    }
    return held == 0 ? E_UNEXPECTED : S_OK;
  }

 private:
  const ClassDescription& description_;
};

}  // namespace

HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** out) noexcept {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  return Guarded([&]() -> HRESULT {
    const ClassDescription* const description = FindClassById(ToUuid(clsid));
    if (description == nullptr || description->create == nullptr) return CLASS_E_CLASSNOTAVAILABLE;
    const auto made = ComPointer<ClassObject>::Attach(new ClassObject(*description));
    return made->QueryInterface(iid, out);
  });
}

bool CanUnload() noexcept { return locks == 0 && !ModuleInUse(); }

}  // namespace praxen::detail
