// The life of variants: empty, copied, dereferenced and cleared.
#include "praxen/automation/variants_posix.h"

#include <cstring>
#include <optional>

#include "praxen/automation/variants.h"

namespace {

// The bytes that a value of the type takes; none for types that do not exist here.
std::optional<size_t> SizeOfValue(int type) {
  switch (type) {
    case VT_EMPTY:
    case VT_NULL:
      return 0;
    case VT_I1:
    case VT_UI1:
      return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
      return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR:
      return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
      return 8;
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return sizeof(void*);
    case VT_DECIMAL:
      return sizeof(DECIMAL);
    default:
      return std::nullopt;
  }
}

bool IsReference(const VARIANT& variant) { return (variant.vt & VT_BYREF) != 0; }

// Gives a variant whose bits were copied its own text or its own count on the object.
HRESULT TakeShare(VARIANT& variant) {
  if (variant.vt == VT_BSTR && variant.bstrVal != nullptr) {
    const BSTR text = variant.bstrVal;
    variant.bstrVal =
        SysAllocStringByteLen(reinterpret_cast<const char*>(text), SysStringByteLen(text));
    return variant.bstrVal == nullptr ? E_OUTOFMEMORY : S_OK;
  }
  const bool isObject = variant.vt == VT_DISPATCH || variant.vt == VT_UNKNOWN;
  if (isObject && variant.punkVal != nullptr) variant.punkVal->AddRef();
  return S_OK;
}

// Ends a copy: target gives up what it held only after the copy has succeeded.
HRESULT Exchange(VARIANT& target, VARIANT copy) {
  HRESULT result = TakeShare(copy);
  if (FAILED(result)) return result;
  result = VariantClear(&target);
  if (FAILED(result)) {
    VariantClear(&copy);
    return result;
  }
  target = copy;
  return S_OK;
}

}  // namespace

namespace praxen::detail {

HRESULT BorrowValue(const VARIANT& source, VARIANT& view) noexcept {
  const VariantValue value = ValueOf(source);
  if (value.type == (VT_BYREF | VT_VARIANT)) return E_INVALIDARG;
  const auto size = SizeOfValue(value.type);
  if (!size) return DISP_E_BADVARTYPE;
  if (value.place == nullptr) return E_INVALIDARG;
  VariantInit(&view);
  if (value.type == VT_DECIMAL) {
    view.decVal = *static_cast<const DECIMAL*>(value.place);
  } else {
    std::memcpy(&view.llVal, value.place, *size);
  }
  view.vt = value.type;
  return S_OK;
}

}  // namespace praxen::detail

void VariantInit(VARIANTARG* variant) noexcept {
  if (variant != nullptr) *variant = {};
}

HRESULT VariantClear(VARIANTARG* variant) noexcept {
  if (variant == nullptr) return E_INVALIDARG;
  if (!IsReference(*variant) && !SizeOfValue(variant->vt)) return DISP_E_BADVARTYPE;
  // Releasing an object may lead back to this variant, which must be empty by then.
  const VARIANT held = *variant;
  VariantInit(variant);
  if (held.vt == VT_BSTR) SysFreeString(held.bstrVal);
  const bool isObject = held.vt == VT_DISPATCH || held.vt == VT_UNKNOWN;
  if (isObject && held.punkVal != nullptr) held.punkVal->Release();
  return S_OK;
}

HRESULT VariantCopy(VARIANTARG* target, const VARIANTARG* source) noexcept {
  if (target == nullptr || source == nullptr) return E_INVALIDARG;
  if (target == source) return S_OK;
  if (!IsReference(*source) && !SizeOfValue(source->vt)) return DISP_E_BADVARTYPE;
  return Exchange(*target, *source);
}

HRESULT VariantCopyInd(VARIANT* target, const VARIANTARG* source) noexcept {
  if (target == nullptr || source == nullptr) return E_INVALIDARG;
  VARIANT view;
  const HRESULT result = praxen::detail::BorrowValue(*source, view);
  return FAILED(result) ? result : Exchange(*target, view);
}
