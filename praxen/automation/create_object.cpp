// Creating objects by the name of their class.
#include "praxen/automation/create_object.h"

namespace praxen {

HRESULT CreateObject(const char16_t* progId, IDispatch** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  CLSID clsid = {};
  const HRESULT result = CLSIDFromProgID(reinterpret_cast<LPCOLESTR>(progId), &clsid);
  if (FAILED(result)) return result;
  return CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                          reinterpret_cast<void**>(object));
}

}  // namespace praxen
