// There are no type libraries, hence no type information.
#include "praxen/describe/dispatch.h"
#include "praxen/describe/tear_off.h"

namespace praxen::detail::dispatch {

HRESULT GetTypeInfoCount(UINT* count) noexcept {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT GetTypeInfo(const ClassDescription&, UINT, ITypeInfo** out) noexcept {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  return DISP_E_BADINDEX;
}

}  // namespace praxen::detail::dispatch

namespace praxen::describe {

HRESULT MakeClassInformation(Object&, REFIID, void**) { return E_NOINTERFACE; }

}  // namespace praxen::describe
