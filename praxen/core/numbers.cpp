// Conversions of numbers to and from text, independent of the C library's locale.
#include "praxen/core/numbers.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <optional>
#include <string>

#include "praxen/core/ascii.h"
#include "praxen/core/decimal.h"
#include "praxen/core/decimal_number.h"
#include "praxen/core/error.h"
#include "praxen/core/locale.h"

namespace praxen::detail {

namespace {

// Numbers of this many digits before the point, or leading zeros after it, get an exponent.
constexpr int kMostPlainDigits = 15;

// Converts a text that has to be a number.
template <class Number>
Number Parse(std::u16string_view text, std::optional<Number> (*convert)(const DecimalNumber&)) {
  const std::optional<DecimalNumber> decimal = ParseDecimal(text);
  if (!decimal) throw TypeMismatch();
  const std::optional<Number> number = convert(*decimal);
  if (!number) throw Overflow();
  return *number;
}

}  // namespace

NumberText::NumberText(int32_t number) {
  char digits[12];
  const auto end = std::to_chars(digits, std::end(digits), number).ptr;
  Append({digits, static_cast<size_t>(end - digits)});
}

NumberText::NumberText(double number) {
  if (!std::isfinite(number)) throw InvalidArgument(u"The number is not finite"_text);
  Append(number < 0 ? u'-' : u' ');
  const Decimal decimal(std::fabs(number));
  const auto append = [this](std::string_view characters) { Append(characters); };
  if (decimal.exponent() >= kMostPlainDigits || decimal.exponent() < -kMostPlainDigits) {
    decimal.AppendScientific(append);
  } else {
    decimal.AppendPlain(append);
  }
}

void NumberText::Append(std::string_view characters) {
  for (const char character : characters) Append(static_cast<char16_t>(character));
}

std::u16string DecimalText(size_t number) { return WidenAscii(std::to_string(number)); }

int32_t TextToInteger(std::u16string_view text) {
  return Parse<int32_t>(text, [](const DecimalNumber& number) { return ToWhole<int32_t>(number); });
}

double XMLTextToDouble(std::u16string_view text) {
  const std::u16string separator = GetDecimalSeparator();
  if (separator.empty() || separator == u" ") throw IllegalDecimalSeparator();
  return Parse<double>(text, ToReal<double>);
}

}  // namespace praxen::detail
