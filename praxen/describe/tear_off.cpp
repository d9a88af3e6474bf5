// The interface that tells which interfaces report errors.
#include "praxen/describe/tear_off.h"

#include "praxen/describe/identifiers.h"

namespace praxen::describe {

namespace {

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

}  // namespace

HRESULT MakeTearOff(Object& object, REFIID iid, void** out) {
  if (iid != IID_ISupportErrorInfo) return MakeClassInformation(object, iid, out);
  *out = new ErrorSupport(object);
  return S_OK;
}

}  // namespace praxen::describe
