// The conversion of variants under the names of the platform's functions.
#include "praxen/automation/conversion.h"

namespace praxen::detail {

HRESULT DateToText(DATE, VARIANT&) { return DISP_E_TYPEMISMATCH; }

}  // namespace praxen::detail

HRESULT VariantChangeType(VARIANTARG* target, const VARIANTARG* source, USHORT flags,
                          VARTYPE type) noexcept {
  return VariantChangeTypeEx(target, source, LOCALE_INVARIANT, flags, type);
}

HRESULT VariantChangeTypeEx(VARIANTARG* target, const VARIANTARG* source, LCID, USHORT flags,
                            VARTYPE type) noexcept {
  if (target == nullptr || source == nullptr) return E_INVALIDARG;
  return praxen::detail::ConvertVariant(*target, *source, flags, type);
}
