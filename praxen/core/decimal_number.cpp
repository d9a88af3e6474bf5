// Reading and writing of decimal digits, independent of the C library's locale.
#include "praxen/core/decimal_number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "praxen/core/ascii.h"
#include "praxen/core/decimal.h"
#include "praxen/core/locale.h"

namespace praxen::detail {

namespace {

// Exponents stop counting here, far beyond what any number holds.
constexpr int64_t kMaxExponent = 1'000'000'000;

bool IsBlank(char16_t c) { return c == u' ' || (c >= u'\t' && c <= u'\r'); }

class DecimalParser {
 public:
  explicit DecimalParser(std::u16string_view text) : text_(text) {}

  std::optional<DecimalNumber> Parse() {
    ReadPrefix();
    if (!ReadDigits() || !ReadExponent() || !ReadSuffix()) return std::nullopt;
    Normalize();
    return std::move(number_);
  }

 private:
  char16_t Peek() const { return at_ < text_.size() ? text_[at_] : u'\0'; }

  bool Skip(char16_t expected) {
    if (at_ == text_.size() || text_[at_] != expected) return false;
    ++at_;
    return true;
  }

  bool SkipBlank() {
    if (!IsBlank(Peek())) return false;
    ++at_;
    return true;
  }

  // There is one sign at most, before or after the digits.
  bool SkipSign() {
    if (signed_) return false;
    const bool minus = Peek() == u'-';
    if (!Skip(u'-') && !Skip(u'+')) return false;
    signed_ = true;
    number_.negative |= minus;
    return true;
  }

  bool SkipOpening() {
    if (open_ || !Skip(u'(')) return false;
    open_ = number_.negative = true;
    return true;
  }

  bool SkipClosing() {
    if (!open_ || !Skip(u')')) return false;
    open_ = false;
    return true;
  }

  void ReadPrefix() {
    while (SkipBlank() || SkipSign() || SkipOpening()) {
    }
  }

  bool ReadSuffix() {
    while (SkipBlank() || SkipSign() || SkipClosing()) {
    }
    return at_ == text_.size() && !open_;
  }

  bool ReadDigits() {
    TakeDigits();
    number_.point = static_cast<int64_t>(number_.digits.size());
    if (Skip(u'.') || SkipSeparator()) TakeDigits();
    return !number_.digits.empty();
  }

  void TakeDigits() {
    for (; IsDigitAscii(Peek()); ++at_) number_.digits.push_back(static_cast<char>(Peek()));
  }

  // The user is asked only for what cannot be part of a number otherwise; a blank ends it.
  bool SkipSeparator() {
    if (at_ == text_.size() || IsBlank(Peek())) return false;
    if (std::u16string_view(u"eE+-()").find(Peek()) != std::u16string_view::npos) return false;
    const std::u16string separator = GetDecimalSeparator();
    if (separator.empty() || !text_.substr(at_).starts_with(separator)) return false;
    at_ += separator.size();
    return true;
  }

  bool ReadExponent() {
    if (!Skip(u'e') && !Skip(u'E')) return true;
    const bool minus = Peek() == u'-';
    if (!Skip(u'-')) Skip(u'+');
    if (!IsDigitAscii(Peek())) return false;
    int64_t exponent = 0;
    for (; IsDigitAscii(Peek()); ++at_) {
      exponent = std::min(exponent * 10 + (Peek() - u'0'), kMaxExponent);
    }
    number_.point += minus ? -exponent : exponent;
    return true;
  }

  void Normalize() {
    std::string& digits = number_.digits;
    const size_t first = std::min(digits.find_first_not_of('0'), digits.size());
    digits.erase(0, first);
    digits.erase(digits.find_last_not_of('0') + 1);
    number_.point = digits.empty() ? 0 : number_.point - static_cast<int64_t>(first);
  }

  std::u16string_view text_;
  size_t at_ = 0;
  bool signed_ = false;
  bool open_ = false;
  DecimalNumber number_;
};

// Whether what follows the digit at index (the first that is cut off) rounds an integer up.
bool RoundsUp(const std::string& digits, size_t index, bool odd) {
  if (index >= digits.size() || digits[index] != '5') {
    return index < digits.size() && digits[index] > '5';
  }
  return odd || index + 1 < digits.size();
}

std::string FormatNonFinite(double value) {
  if (std::isnan(value)) return "1.#QNAN";
  return value < 0 ? "-1.#INF" : "1.#INF";
}

std::string FormatPositive(const Decimal& number, int significantDigits) {
  const int exponent = number.exponent();
  const int count = static_cast<int>(number.digits().size());
  std::string text;
  const auto append = [&](std::string_view characters) { text.append(characters); };
  const int places = exponent < 0 ? count - exponent - 1 : exponent + 1;
  if (places > significantDigits) {
    number.AppendScientific(append);
  } else {
    if (exponent < 0) text = "0";
    number.AppendPlain(append);
  }
  return text;
}

}  // namespace

std::optional<DecimalNumber> ParseDecimal(std::u16string_view text) {
  return DecimalParser(text).Parse();
}

template <class T>
std::optional<T> ToReal(const DecimalNumber& number) {
  T value = 0;
  if (!number.digits.empty()) {
    const std::string text = "0." + number.digits + "e" + std::to_string(number.point);
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
      if (number.point > 0) return std::nullopt;
      value = 0;
    }
  }
  return number.negative ? -value : value;
}

template std::optional<float> ToReal(const DecimalNumber& number);
template std::optional<double> ToReal(const DecimalNumber& number);

std::optional<uint64_t> ToMagnitude(const DecimalNumber& number, int scale) {
  const int64_t whole = number.point + scale;
  if (whole < 0 || number.digits.empty()) return 0;
  if (whole > std::numeric_limits<uint64_t>::digits10 + 1) return std::nullopt;
  const auto count = static_cast<size_t>(whole);
  uint64_t value = 0;
  for (size_t i = 0; i < count; ++i) {
    const int digit = i < number.digits.size() ? number.digits[i] - '0' : 0;
    if (__builtin_mul_overflow(value, 10, &value)) return std::nullopt;
    if (__builtin_add_overflow(value, digit, &value)) return std::nullopt;
  }
  const int carry = RoundsUp(number.digits, count, value % 2 != 0) ? 1 : 0;
  if (__builtin_add_overflow(value, carry, &value)) return std::nullopt;
  return value;
}

double RoundHalfToEven(double value) { return value - std::remainder(value, 1.0); }

std::string FormatReal(double value, int significantDigits) {
  if (!std::isfinite(value)) return FormatNonFinite(value);
  if (value == 0) return "0";
  const std::string text =
      FormatPositive(Decimal(std::abs(value), significantDigits), significantDigits);
  return value < 0 ? "-" + text : text;
}

DecimalNumber FromMagnitude(std::array<uint32_t, 3> magnitude, int scale, bool negative) {
  DecimalNumber number{negative, {}, 0};
  while (std::ranges::any_of(magnitude, [](uint32_t part) { return part != 0; })) {
    uint64_t rest = 0;
    for (uint32_t& part : magnitude) {
      rest = (rest << 32) | part;
      part = static_cast<uint32_t>(rest / 10);
      rest %= 10;
    }
    number.digits.push_back(static_cast<char>('0' + rest));
  }
  std::ranges::reverse(number.digits);
  if (!number.digits.empty()) number.point = static_cast<int64_t>(number.digits.size()) - scale;
  number.digits.erase(number.digits.find_last_not_of('0') + 1);
  return number;
}

std::string FormatPlain(const DecimalNumber& number) {
  const auto point = static_cast<size_t>(std::max<int64_t>(number.point, 0));
  std::string digits(static_cast<size_t>(std::max<int64_t>(-number.point, 0)), '0');
  digits += number.digits;
  if (digits.size() < point) digits.resize(point, '0');
  std::string text = number.negative && !number.digits.empty() ? "-" : "";
  text += point == 0 ? "0" : digits.substr(0, point);
  return digits.size() > point ? text + "." + digits.substr(point) : text;
}

std::string FormatTenThousandths(int64_t amount) {
  const auto bits = static_cast<uint64_t>(amount);
  const uint64_t magnitude = amount < 0 ? 0 - bits : bits;
  std::string text = (amount < 0 ? "-" : "") + std::to_string(magnitude / 10'000);
  // The leading 1 keeps the zeros that follow the decimal point.
  std::string fraction = std::to_string(10'000 + magnitude % 10'000).substr(1);
  fraction.erase(fraction.find_last_not_of('0') + 1);
  return fraction.empty() ? text : text + "." + fraction;
}

}  // namespace praxen::detail
