// The following of references.
#include "praxen/automation/variants.h"

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

}  // namespace praxen::detail
