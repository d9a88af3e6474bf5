// Conversions of numbers to and from text, independent of the C library's locale.
#include "praxen/core/numbers.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "praxen/core/ascii.h"
#include "praxen/core/decimal.h"
#include "praxen/core/decimal_number.h"
#include "praxen/core/error.h"
#include "praxen/core/locale.h"

namespace praxen::detail {

namespace {

// Numbers of this many digits before the point, or leading zeros after it, get an exponent.
constexpr int kMostPlainDigits = 15;

constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,
                                   1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18};

// A number whose digits a double holds exactly, with no more around it than is written around
// numbers.
struct PlainNumber {
  bool negative = false;
  uint64_t digits = 0;
  /// How many of them stand behind the point.
  size_t decimals = 0;
};

// None for the many other forms that numbers may have, and for a zero with a sign.
std::optional<PlainNumber> ReadPlain(std::u16string_view text) {
  constexpr size_t kMostDigits = 18;
  constexpr uint64_t kMostExact = uint64_t{1} << 53;
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
  if (count == 0 || count > kMostDigits || isSigned || number.digits > kMostExact) {
    return std::nullopt;
  }
  return number;
}

// The nearest double of a number in the same form with more digits; none for one that is not, and
// for a zero.
std::optional<double> ReadLong(std::u16string_view text) {
  constexpr size_t kMostCharacters = 40;
  if (text.starts_with(u' ')) text.remove_prefix(1);
  if (text.size() > kMostCharacters) return std::nullopt;
  char narrow[kMostCharacters];
  for (size_t i = 0; i < text.size(); ++i) {
    const bool isPart = IsDigitAscii(text[i]) || text[i] == u'.' || (text[i] == u'-' && i == 0);
    if (!isPart) return std::nullopt;
    narrow[i] = static_cast<char>(text[i]);
  }
  double value = 0;
  const auto [end, error] = std::from_chars(narrow, narrow + text.size(), value);
  if (error != std::errc() || end != narrow + text.size() || value == 0) return std::nullopt;
  return value;
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

__extension__ using uint128 = unsigned __int128;

size_t CountDigits(uint64_t number) {
  size_t count = 1;
  for (; number >= 10'000; number /= 10'000) count += 4;
  return count + (number >= 10 ? 1 : 0) + (number >= 100 ? 1 : 0) + (number >= 1000 ? 1 : 0);
}

// The two digits of each number below 100, as they stand in memory.
constexpr auto kPairs = [] {
  std::array<std::array<char16_t, 2>, 100> pairs{};
  for (size_t i = 0; i < pairs.size(); ++i) {
    pairs[i] = {static_cast<char16_t>(u'0' + i / 10), static_cast<char16_t>(u'0' + i % 10)};
  }
  return pairs;
}();

// Writes so many digits of a number.
void WriteDigits(uint64_t number, size_t count, char16_t* to) {
  for (; count >= 2; count -= 2, number /= 100) {
    std::memcpy(to + count - 2, kPairs[number % 100].data(), sizeof kPairs[0]);
  }
  if (count == 1) *to = static_cast<char16_t>(u'0' + number % 10);
}

// 5 to the power of each index, as far as 64 bits hold it.
constexpr auto kPowersOfFive = [] {
  std::array<uint64_t, 28> powers{1};
  for (size_t i = 1; i < powers.size(); ++i) powers[i] = 5 * powers[i - 1];
  return powers;
}();

// A decimal number: its digits, so many of them behind the point.
struct Decimals {
  uint64_t digits;
  int places;
};

Decimals WithoutZeros(Decimals number) {
  constexpr std::pair<uint64_t, int> kSteps[] = {
      {100'000'000, 8}, {100'000'000, 8}, {10'000, 4}, {100, 2}, {10, 1}};
  for (const auto& [power, places] : kSteps) {
    if (number.digits % power != 0) continue;
    number.digits /= power;
    number.places -= places;
  }
  return number;
}

// Between these bounds everything below fits.
constexpr double kLeastExact = 0x1p-37;
constexpr double kMostExact = 1e15;

// The shortest decimal number that reads back to a double between the bounds, which is no integer,
// and the nearest to it of these. The double is significand * 2^exponent; what is between half the
// way to its neighbours, the ends included when the significand is even, reads back to it. Scaled
// by the power of ten that leaves at least one and at most ten whole numbers between them, and by 4
// for the ends, these are the candidates; what the scaling cuts off is kept in the lowest bit.
Decimals Shortest(double number) {
  constexpr int kBits = 52;
  constexpr uint64_t kImplied = uint64_t{1} << kBits;
  constexpr int kBias = 1075;
  const auto bits = std::bit_cast<uint64_t>(number);
  const int exponent = static_cast<int>(bits >> kBits) - kBias;
  const uint64_t significand = (bits & (kImplied - 1)) | kImplied;
  // The neighbour below a power of two is at half the distance.
  const bool isPower = significand == kImplied;
  // The logarithms of 2 and of 4/3 to the base of 10, times 2^22.
  const int places = -((exponent * 1'262'611 - (isPower ? 524'031 : 0)) >> 22);
  const auto scale = [&](uint64_t quarters) {
    const uint128 product = uint128{quarters} * kPowersOfFive[static_cast<size_t>(places)];
    const int shift = -(exponent + places);
    const auto whole = static_cast<uint64_t>(product >> shift);
    return (uint128{whole} << shift) == product ? whole : whole | 1;
  };
  const uint64_t odd = significand & 1;
  const uint64_t scaled = scale(4 * significand);
  const uint64_t lower = scale(4 * significand - (isPower ? 1 : 2)) + odd;
  const uint64_t upper = scale(4 * significand + 2) - odd;
  const uint64_t whole = scaled / 4;
  const uint64_t tens = whole / 10;
  const bool isTens = lower <= 40 * tens;
  if (isTens != (40 * tens + 40 <= upper)) {
    return WithoutZeros({tens + (isTens ? 0 : 1), places - 1});
  }
  const bool isWhole = lower <= 4 * whole;
  if (isWhole != (4 * whole + 4 <= upper)) return {whole + (isWhole ? 0 : 1), places};
  const uint64_t middle = 4 * whole + 2;
  const bool isAbove = scaled > middle || (scaled == middle && whole % 2 != 0);
  return {whole + (isAbove ? 1 : 0), places};
}

char16_t* WriteInteger(uint64_t number, char16_t* to) {
  const size_t count = CountDigits(number);
  WriteDigits(number, count, to);
  return to + count;
}

// The form of `Decimal::AppendPlain`, of a number between the bounds.
char16_t* WriteExact(double number, char16_t* to) {
  constexpr uint64_t kPowersOfTen[] = {1,
                                       10,
                                       100,
                                       1'000,
                                       10'000,
                                       100'000,
                                       1'000'000,
                                       10'000'000,
                                       100'000'000,
                                       1'000'000'000,
                                       10'000'000'000,
                                       100'000'000'000,
                                       1'000'000'000'000,
                                       10'000'000'000'000,
                                       100'000'000'000'000,
                                       1'000'000'000'000'000,
                                       10'000'000'000'000'000};
  const auto integer = static_cast<uint64_t>(number);
  if (static_cast<double>(integer) == number) return WriteInteger(integer, to);
  Decimals decimals = Shortest(number);
  if (integer != 0) {
    to = WriteInteger(integer, to);
    decimals.digits -= integer * kPowersOfTen[decimals.places];
  }
  *to++ = u'.';
  const auto places = static_cast<size_t>(decimals.places);
  WriteDigits(decimals.digits, places, to);
  return to + places;
}

}  // namespace

char16_t* WriteNumber(int32_t number, char16_t* to) noexcept {
  const auto bits = static_cast<uint32_t>(number);
  if (number < 0) *to++ = u'-';
  return WriteInteger(number < 0 ? 0 - bits : bits, to);
}

char16_t* WriteNumber(double number, char16_t* to) {
  if (!std::isfinite(number)) throw InvalidArgument(u"The number is not finite"_text);
  *to++ = number < 0 ? u'-' : u' ';
  const double magnitude = std::fabs(number);
  if (magnitude == 0 || (magnitude >= kLeastExact && magnitude < kMostExact)) {
    return WriteExact(magnitude, to);
  }
  const Decimal decimal(magnitude);
  const auto append = [&](std::string_view characters) {
    to = std::copy(characters.begin(), characters.end(), to);
  };
  if (decimal.exponent() >= kMostPlainDigits || decimal.exponent() < -kMostPlainDigits) {
    decimal.AppendScientific(append);
  } else {
    decimal.AppendPlain(append);
  }
  return to;
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
  if (const std::optional<double> number = ReadLong(text)) return *number;
  return Parse<double>(text, ToReal<double>);
}

}  // namespace praxen::detail
