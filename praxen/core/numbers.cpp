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
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "praxen/core/ascii.h"
#include "praxen/core/decimal.h"
#include "praxen/core/decimal_number.h"
#include "praxen/core/error.h"
#include "praxen/core/locale.h"

namespace praxen::detail {

namespace {

// Numbers of this many digits before the point, or leading zeros after it, get an exponent.
constexpr int kMostPlainDigits = 15;

constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8, 1e9,
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

// The four digits of a number below 10,000 as they stand in memory as characters, but for the code
// of the digit zero in each.
uint64_t FourDigits(uint32_t number) {
  const uint32_t hundreds = number * 5243 >> 19;
  const uint64_t pairs = hundreds | uint64_t{number - 100 * hundreds} << 32;
  const uint64_t tens = (pairs * 103 >> 10) & 0x0000'000F'0000'000F;
  return tens | (pairs - 10 * tens) << 16;
}

constexpr int kBitsOfCharacter = 16;

void SaveDigits(uint64_t digits, char16_t* to) {
  constexpr uint64_t kZeros = 0x0030'0030'0030'0030;
  digits += kZeros;
  std::memcpy(to, &digits, sizeof digits);
}

constexpr std::array<uint64_t, 17> kIntegerPowersOfTen = [] {
  std::array<uint64_t, 17> powers{1};
  for (size_t i = 1; i < powers.size(); ++i) powers[i] = 10 * powers[i - 1];
  return powers;
}();

// 5 to the power of each index, as far as 64 bits hold it, shifted until the highest bit is set.
struct ShiftedPower {
  uint64_t power;
  int shift;
};
constexpr auto kPowersOfFive = [] {
  std::array<ShiftedPower, 28> powers{};
  uint64_t power = 1;
  for (ShiftedPower& shifted : powers) {
    const int shift = std::countl_zero(power);
    shifted = {power << shift, shift};
    power *= 5;
  }
  return powers;
}();

// A decimal number: its digits, so many of them behind the point.
struct Decimals {
  uint64_t digits;
  int places;
};

// Between these bounds everything below fits.
constexpr double kLeastExact = 0x1p-37;
constexpr double kMostExact = 1e15;

// The shortest decimal number that reads back to a double between the bounds, which is no integer,
// and the nearest to it of these; zeros may follow. The double is significand * 2^exponent; what is
// between half the way to its neighbours, the ends included when the significand is even, reads
// back to it. Scaled by the power of ten that leaves at least one and at most ten whole numbers
// between them, and by 4 for the ends, these are the candidates; what the scaling cuts off is kept
// in the lowest bit. Which one it is depends on the number as on chance, so that nothing branches.
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
  // In 128 bits, of which the upper half are whole quarters.
  const ShiftedPower& five = kPowersOfFive[static_cast<size_t>(places)];
  const int shift = 64 + exponent + places - five.shift;
  const uint128 product = uint128{4 * significand << shift} * five.power;
  const uint128 half = uint128{five.power >> (63 - shift)} << 64 | five.power << (shift + 1);
  const auto cut = [](uint128 value) {
    return static_cast<uint64_t>(value >> 64) | (static_cast<uint64_t>(value) != 0 ? 1 : 0);
  };
  const uint64_t odd = significand & 1;
  const uint64_t scaled = cut(product);
  const uint64_t lower = cut(product - (isPower ? half / 2 : half)) + odd;
  const uint64_t upper = cut(product + half) - odd;
  const uint64_t whole = scaled / 4;
  const uint64_t tens = whole / 10;
  const bool isTens = lower <= 40 * tens;
  const bool isNextTens = 40 * tens + 40 <= upper;
  const bool isWhole = lower <= 4 * whole;
  const bool isNextWhole = 4 * whole + 4 <= upper;
  const uint64_t middle = 4 * whole + 2;
  const bool isAbove = (scaled > middle) | ((scaled == middle) & (whole % 2 != 0));
  const bool isNext = isWhole != isNextWhole ? isNextWhole : isAbove;
  const uint64_t short_digits = 10 * (tens + (isNextTens ? 1 : 0));
  return {isTens != isNextTens ? short_digits : whole + (isNext ? 1 : 0), places};
}

char16_t* WriteFew(uint32_t number, char16_t* to) {
  constexpr int kLast = 3 * kBitsOfCharacter;
  const uint64_t digits = FourDigits(number);
  const int zeros = std::countr_zero(digits | uint64_t{1} << kLast) / kBitsOfCharacter;
  SaveDigits(digits >> (zeros * kBitsOfCharacter), to);
  return to + 4 - zeros;
}

char16_t* WriteInteger(uint64_t number, char16_t* to) {
  if (number < 10'000) return WriteFew(static_cast<uint32_t>(number), to);
  to = WriteInteger(number / 10'000, to);
  SaveDigits(FourDigits(static_cast<uint32_t>(number % 10'000)), to);
  return to + 4;
}

constexpr uint32_t kEightDigits = 100'000'000;

#if defined(__SSE2__)
// Writes 16 digits, and returns the end without the zeros at the end.
char16_t* WriteSixteen(uint64_t number, char16_t* to) {
  const auto each = [](int value) { return _mm_set1_epi16(static_cast<int16_t>(value)); };
  const __m128i eights = _mm_set_epi64x(static_cast<int64_t>(number % kEightDigits),
                                        static_cast<int64_t>(number / kEightDigits));
  // The quotient by 10,000, and the remainder in the upper half.
  const __m128i quotients = _mm_srli_epi64(_mm_mul_epu32(eights, _mm_set1_epi64x(0xD1B7'1759)), 45);
  const __m128i remainders =
      _mm_sub_epi64(eights, _mm_mul_epu32(quotients, _mm_set1_epi64x(10'000)));
  const __m128i fours = _mm_or_si128(quotients, _mm_slli_epi64(remainders, 32));
  const __m128i hundreds = _mm_srli_epi16(_mm_mulhi_epu16(fours, each(5243)), 3);
  const __m128i units = _mm_sub_epi16(fours, _mm_mullo_epi16(hundreds, each(100)));
  const __m128i pairs = _mm_or_si128(hundreds, _mm_slli_epi32(units, 16));
  const __m128i tens = _mm_mulhi_epu16(pairs, each(6554));
  const __m128i ones = _mm_sub_epi16(pairs, _mm_mullo_epi16(tens, each(10)));
  const __m128i digits = _mm_or_si128(tens, _mm_slli_epi16(ones, 8));
  const __m128i zero = _mm_setzero_si128();
  auto* const out = reinterpret_cast<__m128i*>(to);
  _mm_storeu_si128(out, _mm_add_epi16(_mm_unpacklo_epi8(digits, zero), each(u'0')));
  _mm_storeu_si128(out + 1, _mm_add_epi16(_mm_unpackhi_epi8(digits, zero), each(u'0')));
  const auto zeros = static_cast<uint16_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(digits, zero)));
  return to + 16 - std::countl_one(zeros);
}
#else
char16_t* WriteEight(uint32_t number, char16_t* to) {
  const uint64_t upper = FourDigits(number / 10'000);
  const uint64_t lower = FourDigits(number % 10'000);
  SaveDigits(upper, to);
  SaveDigits(lower, to + 4);
  if (lower != 0) return to + 8 - std::countl_zero(lower) / kBitsOfCharacter;
  return to + 4 - std::countl_zero(upper) / kBitsOfCharacter;
}

// Writes 16 digits, and returns the end without the zeros at the end.
char16_t* WriteSixteen(uint64_t number, char16_t* to) {
  const auto lower = static_cast<uint32_t>(number % kEightDigits);
  char16_t* const middle = WriteEight(static_cast<uint32_t>(number / kEightDigits), to);
  char16_t* const end = WriteEight(lower, to + 8);
  return lower == 0 ? middle : end;
}
#endif

// The form of `Decimal::AppendPlain`, of a number between the bounds.
char16_t* WriteExact(double number, char16_t* to) {
  const auto integer = static_cast<int64_t>(number);
  if (static_cast<double>(integer) == number) {
    return WriteInteger(static_cast<uint64_t>(integer), to);
  }
  // The last digits are 16. Of a number below one there may be zeros and one more before them.
  constexpr int kLast = 16;
  constexpr size_t kMostZeros = 12;
  auto [digits, places] = Shortest(number);
  uint64_t first = 0;
  if (integer == 0) {
    first = digits / kIntegerPowersOfTen[kLast];
    digits -= first * kIntegerPowersOfTen[kLast];
    for (size_t i = 0; i < kMostZeros; i += 4) SaveDigits(0, to + i);
  } else {
    const auto whole = static_cast<uint64_t>(integer);
    to = WriteInteger(whole, to);
    digits -= whole * kIntegerPowersOfTen[static_cast<size_t>(places)];
    digits *= kIntegerPowersOfTen[static_cast<size_t>(kLast - places)];
    places = kLast;
  }
  char16_t* const before = to + (places - kLast);
  *before = static_cast<char16_t>(u'0' + first);
  *to = u'.';
  return WriteSixteen(digits, before + 1);
}

}  // namespace

char16_t* WriteNumber(int32_t number, char16_t* to) noexcept {
  const auto bits = static_cast<uint32_t>(number);
  const uint32_t magnitude = number < 0 ? 0 - bits : bits;
  if (number < 0) *to++ = u'-';
  return magnitude < 10'000 ? WriteFew(magnitude, to) : WriteInteger(magnitude, to);
}

char16_t* WriteNumber(double number, char16_t* to) {
  *to++ = number < 0 ? u'-' : u' ';
  const double magnitude = std::fabs(number);
  if (magnitude >= kLeastExact && magnitude < kMostExact) return WriteExact(magnitude, to);
  if (magnitude == 0) return WriteInteger(0, to);
  if (!std::isfinite(number)) throw InvalidArgument(u"The number is not finite"_text);
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
