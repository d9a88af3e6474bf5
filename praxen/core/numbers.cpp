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

constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

// A number of at most 15 digits with no more around it than is written around numbers.
struct PlainNumber {
  bool negative = false;
  uint64_t digits = 0;
  /// How many of them stand behind the point.
  size_t decimals = 0;
};

// None for the many other forms that numbers may have, and for a zero with a sign.
std::optional<PlainNumber> ReadPlain(std::u16string_view text) {
  constexpr size_t kMostDigits = 15;
  PlainNumber number;
  size_t at = 0;
  if (text.starts_with(u' ') || text.starts_with(u'-')) number.negative = text[at++] == u'-';
  const size_t first = at;
  size_t point = text.size();
  if (text.size() - first > kMostDigits + 1) return std::nullopt;
  for (; at < text.size(); ++at) {
    if (IsDigitAscii(text[at])) {
      number.digits = 10 * number.digits + static_cast<uint64_t>(text[at] - u'0');
    } else if (text[at] == u'.' && point == text.size()) {
      point = at;
    } else {
      return std::nullopt;
    }
  }
  const size_t behind = text.size() - point;
  if (behind != 0) number.decimals = behind - 1;
  const size_t count = text.size() - first - (behind != 0 ? 1 : 0);
  const bool isSigned = number.negative && number.digits == 0;
  if (count == 0 || count > kMostDigits || isSigned) return std::nullopt;
  return number;
}

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
  const std::optional<PlainNumber> plain = ReadPlain(text);
  if (plain && plain->decimals == 0 && plain->digits <= INT32_MAX) {
    const auto magnitude = static_cast<int32_t>(plain->digits);
    return plain->negative ? -magnitude : magnitude;
  }
  return Parse<int32_t>(text, [](const DecimalNumber& number) { return ToWhole<int32_t>(number); });
}

double XMLTextToDouble(std::u16string_view text) { return XMLNumbers().ToDouble(text); }

double XMLNumbers::ToDouble(std::u16string_view text) {
  if (!isSeparatorLegal_) {
    const std::u16string separator = GetDecimalSeparator();
    if (separator.empty() || separator == u" ") throw IllegalDecimalSeparator();
    isSeparatorLegal_ = true;
  }
  if (const std::optional<PlainNumber> plain = ReadPlain(text)) {
    // Both are exact, so that the quotient is the nearest double.
    const double magnitude = static_cast<double>(plain->digits) / kPowersOfTen[plain->decimals];
    return plain->negative ? -magnitude : magnitude;
  }
  return Parse<double>(text, ToReal<double>);
}

}  // namespace praxen::detail
