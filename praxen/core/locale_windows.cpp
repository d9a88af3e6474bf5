// The decimal separator of the regional settings.
#include <windows.h>

#include "praxen/core/locale.h"

namespace praxen::detail {

std::u16string SystemDecimalSeparator() {
  char narrow[5];
  const int size = GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, narrow, sizeof(narrow));
  if (size <= 1) return {};
  wchar_t wide[sizeof(narrow)];
  const int length = MultiByteToWideChar(CP_ACP, 0, narrow, size - 1, wide, sizeof(narrow));
  return {wide, wide + length};
}

}  // namespace praxen::detail
