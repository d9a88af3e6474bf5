// Numbers given as texts and texts given as numbers: one rule on every system.
#ifndef PRAXEN_CORE_DECIMAL_NUMBER_H_
#define PRAXEN_CORE_DECIMAL_NUMBER_H_

#include <array>
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

/// Reads a number with blanks, a sign before or after, parentheses that negate, "." or the user's
/// decimal separator, and an exponent. None for any other text: digits are never grouped.
std::optional<DecimalNumber> ParseDecimal(std::u16string_view text);

/// The nearest T, 0 for a number too small; none for one too large. T is float or double.
template <class T>
std::optional<T> ToReal(const DecimalNumber& number);

/// The magnitude times ten to the power of scale, halves rounded to even; none when too large.
std::optional<uint64_t> ToMagnitude(const DecimalNumber& number, int scale);

/// The same with its sign, as a `T`.
template <class T>
std::optional<T> ToWhole(const DecimalNumber& number, int scale = 0) {
  T value = 0;
  const std::optional<uint64_t> magnitude = ToMagnitude(number, scale);
  if (!magnitude || __builtin_mul_overflow(*magnitude, number.negative ? -1 : 1, &value)) return {};
  return value;
}

/// The nearest integer, halves to even, whatever the rounding mode of the process.
double RoundHalfToEven(double value);

/// The shortest text of value rounded to so many significant digits, with an exponent when the
/// digits before or after the decimal point would be more than that.
std::string FormatReal(double value, int significantDigits);

/// The magnitude of 96 bits, the highest first, divided by ten to the power of scale.
DecimalNumber FromMagnitude(std::array<uint32_t, 3> magnitude, int scale, bool negative);

/// The number without an exponent and without zeros at either end but the one before the point.
std::string FormatPlain(const DecimalNumber& number);

/// An amount of ten-thousandths as decimal text without trailing zeros.
std::string FormatTenThousandths(int64_t amount);

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_DECIMAL_NUMBER_H_
