// What variants hold, by themselves or by reference.
#ifndef PRAXEN_AUTOMATION_VARIANTS_H_
#define PRAXEN_AUTOMATION_VARIANTS_H_

#include <cstddef>
#include <optional>

#include "praxen/automation/automation.h"

namespace praxen::detail {

/// A value where it lies, which the variant or whoever it refers to still owns.
struct VariantValue {
  /// Without VT_BYREF, but for a reference to a variant that cannot be followed.
  VARTYPE type;
  /// Null for a null reference, for a reference to a reference to a variant and for one to nothing.
  const void* place;
};

/// The value of the variant, its references followed; the type is not checked.
VariantValue ValueOf(const VARIANT& variant) noexcept;

/// The bytes that a value of the type takes; none for types that the library does not know.
std::optional<size_t> SizeOfValue(VARTYPE type) noexcept;

/// Makes view the value of source or what it refers to, borrowed: view must not be cleared.
/// E_INVALIDARG for a null reference and for a reference to a reference to a variant,
/// DISP_E_BADVARTYPE for a type unknown.
HRESULT BorrowValue(const VARIANT& source, VARIANT& view) noexcept;

}  // namespace praxen::detail

#endif  // PRAXEN_AUTOMATION_VARIANTS_H_
