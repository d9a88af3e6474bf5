// Decimal text and numbers, as automation converts them.
#ifndef PRAXEN_AUTOMATION_NUMBERS_POSIX_H_
#define PRAXEN_AUTOMATION_NUMBERS_POSIX_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace praxen::detail {

/// A decimal number of any length: 0.<digits> times ten to the power of point, the digits without
/// zeros at either end, so that there are none for 0.
struct DecimalNumber {
  bool negative = false;
  std::string digits;
  int64_t point = 0;
};

/// Reads a number with blanks, a sign before or after, parentheses that negate, "," between the
/// digits before the ".", and an exponent; none when text is anything else.
std::optional<DecimalNumber> ParseDecimal(std::u16string_view text);

/// The nearest T, 0 for a number too small; none for one too large. T is float or double.
template <class T>
std::optional<T> ToReal(const DecimalNumber& number);

/// The magnitude times ten to the power of scale, halves rounded to even; none when too large.
std::optional<uint64_t> ToMagnitude(const DecimalNumber& number, int scale);

/// The nearest integer, halves to even, whatever the rounding mode of the process.
double RoundHalfToEven(double value);

/// The shortest text of value rounded to so many significant digits, with an exponent when the
/// digits before or after the decimal point would be more than that.
std::string FormatReal(double value, int significantDigits);

/// An amount of ten-thousandths as decimal text without trailing zeros.
std::string FormatTenThousandths(int64_t amount);

}  // namespace praxen::detail

#endif  // PRAXEN_AUTOMATION_NUMBERS_POSIX_H_
