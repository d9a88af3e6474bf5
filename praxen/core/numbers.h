// Numbers as the exchange format writes and reads them.
#ifndef PRAXEN_CORE_NUMBERS_H_
#define PRAXEN_CORE_NUMBERS_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "praxen/core/text.h"

namespace praxen::detail {

/// Room for every written number.
inline constexpr size_t kLongestNumber = 48;

/// Writes a number from a place on, and returns the end. In decimal, with "-" before a negative
/// number.
char16_t* WriteNumber(int32_t number, char16_t* to) noexcept;
/// The same in the classic form: a leading blank before zero and positive numbers, "." as decimal
/// point whatever the locale, no zero before it, and the shortest digits that read back to the same
/// double. Raises `InvalidArgument` for infinities and not-a-number, which the format cannot carry.
char16_t* WriteNumber(double number, char16_t* to);

/// The characters of a written number.
class NumberText {
 public:
  explicit NumberText(int32_t number) : end_(WriteNumber(number, characters_)) {}
  explicit NumberText(double number) : end_(WriteNumber(number, characters_)) {}

  operator std::u16string_view() const noexcept {  // NOLINT
    return {characters_, static_cast<size_t>(end_ - characters_)};
  }

 private:
  char16_t characters_[kLongestNumber];
  const char16_t* end_;
};

/// The decimal digits of a number.
std::u16string DecimalText(size_t number);

/// The integer nearest to a decimal text, halves to even, as of a text given for a property that is
/// an integer (`ParseDecimal`); raises `TypeMismatch` for a text that is no number and `Overflow`
/// beyond 32 bits.
int32_t TextToInteger(std::u16string_view text);

/// The double of a decimal text with "." as decimal point, whatever the user's locale; a text
/// written with the locale's own separator is taken as well, and one too small for a double is 0.
/// Raises `IllegalDecimalSeparator` when the locale's separator is empty or a blank, `TypeMismatch`
/// for a text that is no number and `Overflow` for one beyond a double.
double XMLTextToDouble(std::u16string_view text);

/// The same for the numbers of one document, for which the separator is asked for once.
class XMLNumbers {
 public:
  double ToDouble(std::u16string_view text);
  /// Ends the document.
  void Clear() noexcept { isSeparatorLegal_ = false; }

 private:
  bool isSeparatorLegal_ = false;
};

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_NUMBERS_H_
