// Error objects, and the one that each thread holds for its caller.
#include <new>

#include "praxen/automation/automation.h"
#include "praxen/automation/border.h"
#include "praxen/automation/counted.h"
#include "praxen/automation/values.h"
#include "praxen/core/thread_state.h"

namespace {

// One object has both interfaces: what a server fills, its client reads.
class ErrorObject final : public praxen::detail::Counted<ICreateErrorInfo, IErrorInfo> {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (iid == IID_IErrorInfo) {
      *object = static_cast<IErrorInfo*>(this);
    } else if (iid == IID_ICreateErrorInfo || iid == IID_IUnknown) {
      *object = static_cast<ICreateErrorInfo*>(this);
    } else {
      return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE SetGUID(REFGUID guid) override {
    guid_ = guid;
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE SetSource(LPOLESTR source) override { return Set(source_, source); }

  HRESULT STDMETHODCALLTYPE SetDescription(LPOLESTR description) override {
    return Set(description_, description);
  }

  HRESULT STDMETHODCALLTYPE SetHelpFile(LPOLESTR helpFile) override {
    return Set(helpFile_, helpFile);
  }

  HRESULT STDMETHODCALLTYPE SetHelpContext(DWORD helpContext) override {
    helpContext_ = helpContext;
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE GetGUID(GUID* guid) override { return Get(guid_, guid); }

  HRESULT STDMETHODCALLTYPE GetSource(BSTR* source) override { return Get(source_, source); }

  HRESULT STDMETHODCALLTYPE GetDescription(BSTR* description) override {
    return Get(description_, description);
  }

  HRESULT STDMETHODCALLTYPE GetHelpFile(BSTR* helpFile) override {
    return Get(helpFile_, helpFile);
  }

  HRESULT STDMETHODCALLTYPE GetHelpContext(DWORD* helpContext) override {
    return Get(helpContext_, helpContext);
  }

 private:
  static HRESULT Set(praxen::BStr& text, LPCOLESTR value) {
    auto copy = praxen::BStr::Attach(SysAllocString(value));
    if (value != nullptr && copy.Get() == nullptr) return E_OUTOFMEMORY;
    text = std::move(copy);
    return S_OK;
  }

  static HRESULT Get(const praxen::BStr& text, BSTR* out) {
    if (out == nullptr) return E_POINTER;
    *out = SysAllocString(text.Get());
    return text.Get() != nullptr && *out == nullptr ? E_OUTOFMEMORY : S_OK;
  }

  template <class T>
  static HRESULT Get(const T& value, T* out) {
    if (out == nullptr) return E_POINTER;
    *out = value;
    return S_OK;
  }

  GUID guid_ = GUID_NULL;
  praxen::BStr source_;
  praxen::BStr description_;
  praxen::BStr helpFile_;
  DWORD helpContext_ = 0;
};

struct CurrentError final : praxen::detail::KeptByThread {
  praxen::ComPointer<IErrorInfo> info;
};

// Null when there is no memory for it.
CurrentError* OfThread() noexcept {
  return praxen::detail::AtBorder(
      [] { return &praxen::detail::ThreadState::Current().Keep<CurrentError>(); },
      [] { return nullptr; });
}

}  // namespace

HRESULT SetErrorInfo(ULONG reserved, IErrorInfo* info) noexcept {
  if (reserved != 0) return E_INVALIDARG;
  CurrentError* const current = OfThread();
  if (current == nullptr) return E_OUTOFMEMORY;
  current->info = praxen::ComPointer<IErrorInfo>(info);
  return S_OK;
}

HRESULT GetErrorInfo(ULONG reserved, IErrorInfo** info) noexcept {
  if (reserved != 0 || info == nullptr) return E_INVALIDARG;
  CurrentError* const current = OfThread();
  *info = current == nullptr ? nullptr : current->info.Detach();
  return *info == nullptr ? S_FALSE : S_OK;
}

HRESULT CreateErrorInfo(ICreateErrorInfo** info) noexcept {
  if (info == nullptr) return E_INVALIDARG;
  *info = new (std::nothrow) ErrorObject;
  return *info == nullptr ? E_OUTOFMEMORY : S_OK;
}
