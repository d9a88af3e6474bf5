// Interfaces that need no place in the object: they are made when a client asks for them.
#include "praxen/describe/tear_off.h"

#include "praxen/describe/dispatch.h"
#include "praxen/describe/identifiers.h"

namespace praxen {

namespace {

// Counted on its own, so that the object needs to know nothing of it; any other interface is asked
// of the object.
template <class I>
class TearOff : public I {
 public:
  TearOff(const TearOff&) = delete;
  TearOff& operator=(const TearOff&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    return dispatch::QueryInterface(*object_, iid, out);
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG remaining = --references_;
    if (remaining == 0) delete this;
    return remaining;
  }

 protected:
  explicit TearOff(Object& object) : object_(&object) {}
  virtual ~TearOff() = default;

  const ClassDescription& description() const { return object_->description(); }

 private:
  ULONG references_ = 1;
  const Ref<Object> object_;
};

class ErrorSupport final : public TearOff<ISupportErrorInfo> {
 public:
  explicit ErrorSupport(Object& object) : TearOff(object) {}

  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override {
    const ClassDescription* const kind = description().kind;
    const bool described = iid == IID_IDispatch || iid == InterfaceId(description()) ||
                           (kind != nullptr && iid == InterfaceId(*kind));
    return described ? S_OK : S_FALSE;
  }
};

#ifdef _WIN32

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

#endif

template <class Made>
HRESULT Make(Object& object, void** out) {
  *out = new Made(object);
  return S_OK;
}

}  // namespace

HRESULT MakeTearOff(Object& object, REFIID iid, void** out) {
  if (iid == IID_ISupportErrorInfo) return Make<ErrorSupport>(object, out);
#ifdef _WIN32
  if (iid == IID_IProvideClassInfo || iid == IID_IProvideClassInfo2) {
    return Make<ClassInformation>(object, out);
  }
#endif
  return E_NOINTERFACE;
}

}  // namespace praxen
