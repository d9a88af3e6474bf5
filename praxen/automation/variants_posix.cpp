// The life of variants: empty, copied, dereferenced and cleared.
#include "praxen/automation/variants.h"

using praxen::detail::BorrowValue;
using praxen::detail::SizeOfValue;

namespace {

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
  const HRESULT result = BorrowValue(*source, view);
  return FAILED(result) ? result : Exchange(*target, view);
}
