// Taking digits and exponent apart, independent of the C library's locale.
#include "praxen/core/decimal.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace praxen::detail {

Decimal::Decimal(double number) {
  char text[32];
  const auto format = std::chars_format::scientific;
  Take(text, std::to_chars(text, std::end(text), number, format).ptr);
}

Decimal::Decimal(double number, int significantDigits) {
  char text[32];
  const auto format = std::chars_format::scientific;
  Take(text, std::to_chars(text, std::end(text), number, format, significantDigits - 1).ptr);
  count_ = digits().find_last_not_of('0') + 1;
}

// Takes a text such as "1.5e+02".
void Decimal::Take(const char* from, const char* end) {
  const char* const mark = std::find(from, end, 'e');
  count_ = static_cast<size_t>(std::remove_copy(from, mark, digits_, '.') - digits_);
  // from_chars takes no "+".
  std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end, exponent_);
}

}  // namespace praxen::detail
