// Reading variants without copying what they own.
#ifndef PRAXEN_AUTOMATION_VARIANTS_POSIX_H_
#define PRAXEN_AUTOMATION_VARIANTS_POSIX_H_

#include "praxen/automation/automation.h"

namespace praxen::detail {

/// Makes view the value of source or what it refers to, borrowed: view must not be cleared.
/// E_INVALIDARG for a null reference and for a reference to a reference to a variant,
/// DISP_E_BADVARTYPE for a type unknown.
HRESULT BorrowValue(const VARIANT& source, VARIANT& view) noexcept;

}  // namespace praxen::detail

#endif  // PRAXEN_AUTOMATION_VARIANTS_POSIX_H_
