// Dates, whose texts are the system's.
#include "praxen/automation/conversion.h"

namespace praxen::detail {

HRESULT DateToText(DATE date, VARIANT& out) {
  return VarBstrFromDate(date, LOCALE_USER_DEFAULT, 0, &out.bstrVal);
}

}  // namespace praxen::detail
