// Conversions of numbers to and from text, independent of the C library's locale.
#include "praxen/core/numbers.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <string>

#include "praxen/core/ascii.h"
#include "praxen/core/decimal.h"
#include "praxen/core/error.h"
#include "praxen/core/locale.h"

namespace praxen::detail {

namespace {

// Numbers of this many digits before the point, or leading zeros after it, get an exponent.
constexpr int kMostPlainDigits = 15;

// The text in ASCII for from_chars, which takes no "+"; empty when it cannot be a number. What
// from_chars takes besides numbers, "inf" and "nan", does not begin with a digit or point.
std::string ToAscii(std::u16string_view text) {
  text = Trim<char16_t>(text, u" \t\r\n");
  const bool negative = text.starts_with(u'-');
  if (negative || text.starts_with(u'+')) text.remove_prefix(1);
  if (text.empty() || !(text[0] == u'.' || IsDigitAscii(text[0]))) return {};
  std::string ascii = NarrowAscii(text).value_or("");
  return negative && !ascii.empty() ? "-" + ascii : ascii;
}

template <class Number>
Number Parse(const std::string& ascii) {
  Number number{};
  const char* const end = ascii.data() + ascii.size();
  const auto [stop, error] = std::from_chars(ascii.data(), end, number);
  if (stop != end || error == std::errc::invalid_argument) throw TypeMismatch();
  if (error == std::errc::result_out_of_range) throw Overflow();
  return number;
}

void ReplaceAll(std::u16string& text, std::u16string_view from, std::u16string_view to) {
  for (size_t at = 0; (at = text.find(from, at)) != std::u16string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
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

int32_t TextToInteger(std::u16string_view text) { return Parse<int32_t>(ToAscii(text)); }

double XMLTextToDouble(std::u16string_view text) {
  const std::u16string separator = GetDecimalSeparator();
  if (separator.empty() || separator == u" ") throw IllegalDecimalSeparator();
  if (separator == u".") return Parse<double>(ToAscii(text));
  std::u16string plain(text);
  ReplaceAll(plain, separator, u".");
  return Parse<double>(ToAscii(plain));
}

}  // namespace praxen::detail
