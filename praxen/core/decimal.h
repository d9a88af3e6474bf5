// The decimal digits of floating-point numbers, and the two forms in which they are written.
#ifndef PRAXEN_CORE_DECIMAL_H_
#define PRAXEN_CORE_DECIMAL_H_

#include <cstddef>
#include <string_view>

namespace praxen::detail {

/// The significant digits of a number that is finite and not negative, and their power of ten.
class Decimal {
 public:
  /// The shortest digits that read back to the same number; "0" for zero.
  explicit Decimal(double number);
  /// The digits of a number above zero rounded to 1 to 17 of them, without zeros at the end.
  Decimal(double number, int significantDigits);

  std::string_view digits() const { return {digits_, count_}; }
  /// The power of ten of the first digit.
  int exponent() const { return exponent_; }

  /// Hands the form without exponent, such as "150", "1.5" or ".015", to `append` in parts.
  template <class Append>
  void AppendPlain(Append append) const {
    if (exponent_ < 0) {
      append(".");
      AppendZeros(append, -exponent_ - 1);
      return append(digits());
    }
    const size_t whole = static_cast<size_t>(exponent_) + 1;
    append(digits().substr(0, whole));
    if (count_ <= whole) return AppendZeros(append, static_cast<int>(whole - count_));
    append(".");
    append(digits().substr(whole));
  }

  /// The same for the form with an exponent of two digits or more, such as "1.5E+02".
  template <class Append>
  void AppendScientific(Append append) const {
    append(digits().substr(0, 1));
    if (count_ > 1) append(".");
    append(digits().substr(1));
    append(exponent_ < 0 ? "E-" : "E+");
    const int size = exponent_ < 0 ? -exponent_ : exponent_;
    const char exponent[] = {Digit(size / 100), Digit(size / 10), Digit(size)};
    append(std::string_view(exponent, 3).substr(size < 100 ? 1 : 0));
  }

 private:
  static constexpr char Digit(int number) { return static_cast<char>('0' + number % 10); }

  template <class Append>
  static void AppendZeros(Append& append, int count) {
    for (; count > 0; --count) append("0");
  }

  void Take(const char* from, const char* end);

  /// As many as a double needs, and the point that is taken out.
  char digits_[32];
  size_t count_ = 0;
  int exponent_ = 0;
};

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_DECIMAL_H_
