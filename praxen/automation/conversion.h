// Conversion of variants, in one way on every system.
#ifndef PRAXEN_AUTOMATION_CONVERSION_H_
#define PRAXEN_AUTOMATION_CONVERSION_H_

#include "praxen/automation/automation.h"

namespace praxen::detail {

/// As VariantChangeType, in whose place it stands because that goes by the user's regional
/// settings: numbers become texts with ".", and texts become numbers by `ParseDecimal`.
HRESULT ConvertVariant(VARIANT& target, const VARIANT& source, USHORT flags, VARTYPE type) noexcept;

/// Stores the text of a date in an empty variant, whose type the caller sets; DISP_E_TYPEMISMATCH
/// where the system has no conversion of dates.
HRESULT DateToText(DATE date, VARIANT& out);

}  // namespace praxen::detail

#endif  // PRAXEN_AUTOMATION_CONVERSION_H_
