// Conversions of numbers to and from text, independent of the C library's locale.
#include "praxen/core/numbers.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <string>

#include "praxen/core/ascii.h"
#include "praxen/core/error.h"
#include "praxen/core/locale.h"

namespace praxen::detail {

namespace {

// Numbers of this many digits before the point, or leading zeros behind it, get an exponent.
constexpr int kMostPlainDigits = 15;

std::u16string_view TrimBlanks(std::u16string_view text) {
  const size_t first = text.find_first_not_of(u" \t\r\n");
  if (first == std::u16string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(u" \t\r\n") - first + 1);
}

// The text in ASCII for from_chars, which takes no "+"; empty when it cannot be a number. What
// from_chars takes besides numbers, "inf" and "nan", does not begin with a digit or point.
std::string ToAscii(std::u16string_view text) {
  text = TrimBlanks(text);
  const bool negative = text.starts_with(u'-');
  if (negative || text.starts_with(u'+')) text.remove_prefix(1);
  if (text.empty() || !(text[0] == u'.' || (text[0] >= u'0' && text[0] <= u'9'))) return {};
  std::string ascii(negative ? "-" : "");
  for (const char16_t character : text) {
    if (character > 0x7E) return {};
    ascii.push_back(static_cast<char>(character));
  }
  return ascii;
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

// The shortest digits that read back to the same number, and the power of ten of the first.
struct NumberText::Decimal {
  explicit Decimal(double number) {
    char buffer[32];
    const auto format = std::chars_format::scientific;
    const char* const end = std::to_chars(buffer, std::end(buffer), number, format).ptr;
    const char* const mark = std::find(static_cast<const char*>(buffer), end, 'e');
    count = static_cast<size_t>(
        std::remove_copy(static_cast<const char*>(buffer), mark, characters, '.') - characters);
    // from_chars takes no "+".
    std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end, exponent);
  }
  std::string_view digits() const { return {characters, count}; }

  char characters[32];
  size_t count;
  int exponent = 0;
};

NumberText::NumberText(int32_t number) {
  char digits[12];
  const auto end = std::to_chars(digits, std::end(digits), number).ptr;
  Append({digits, static_cast<size_t>(end - digits)});
}

NumberText::NumberText(double number) {
  if (!std::isfinite(number)) throw InvalidArgument(u"The number is not finite"_text);
  Append(number < 0 ? u'-' : u' ');
  const Decimal decimal(std::fabs(number));
  if (decimal.exponent >= kMostPlainDigits || decimal.exponent < -kMostPlainDigits) {
    AppendScientific(decimal);
  } else {
    AppendPlain(decimal);
  }
}

void NumberText::AppendScientific(const Decimal& decimal) {
  Append(decimal.digits().substr(0, 1));
  if (decimal.count > 1) Append(u'.');
  Append(decimal.digits().substr(1));
  const NumberText exponent(std::abs(decimal.exponent));
  Append(decimal.exponent < 0 ? "E-" : "E+");
  if (exponent.length_ < 2) Append(u'0');
  for (size_t i = 0; i < exponent.length_; ++i) Append(exponent.characters_[i]);
}

void NumberText::AppendPlain(const Decimal& decimal) {
  if (decimal.exponent < 0) {
    Append(u'.');
    AppendZeros(-decimal.exponent - 1);
    return Append(decimal.digits());
  }
  const size_t whole = static_cast<size_t>(decimal.exponent) + 1;
  Append(decimal.digits().substr(0, whole));
  if (decimal.count <= whole) return AppendZeros(static_cast<int>(whole - decimal.count));
  Append(u'.');
  Append(decimal.digits().substr(whole));
}

void NumberText::Append(std::string_view characters) {
  for (const char character : characters) Append(static_cast<char16_t>(character));
}

void NumberText::AppendZeros(int count) {
  for (; count > 0; --count) Append(u'0');
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
