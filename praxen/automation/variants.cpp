// The following of references, and the borrowing of values.
#include "praxen/automation/variants.h"

#include <cstring>

namespace praxen::detail {

namespace {

constexpr VARTYPE kVariantReference = VT_BYREF | VT_VARIANT;

}  // namespace

VariantValue ValueOf(const VARIANT& variant) noexcept {
  const VARIANT* from = &variant;
  if (from->vt == kVariantReference) from = from->pvarVal;
  if (from == nullptr || from->vt == kVariantReference) return {kVariantReference, nullptr};
  const auto type = static_cast<VARTYPE>(from->vt & ~VT_BYREF);
  if (type == from->vt) {
    // Only a decimal begins before the place of the other values.
    return {type, type == VT_DECIMAL ? static_cast<const void*>(&from->decVal) : &from->llVal};
  }
  const bool isNothing = type == VT_EMPTY || type == VT_NULL;
  return {type, isNothing ? nullptr : from->byref};
}

std::optional<size_t> SizeOfValue(VARTYPE type) noexcept {
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
