// Names and numbers are ASCII: between their narrow and their UTF-16 form, and without regard to
// case.
#ifndef PRAXEN_CORE_ASCII_H_
#define PRAXEN_CORE_ASCII_H_

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "praxen/core/language.h"

namespace praxen::detail {

/// The lower case of an ASCII letter; any other character as it is.
template <class Char>
constexpr Char ToLowerAscii(Char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<Char>(c + ('a' - 'A')) : c;
}

template <class Char>
constexpr bool IsDigitAscii(Char c) {
  return c >= '0' && c <= '9';
}

/// The text without the characters of `blanks` at its ends.
template <class Char>
constexpr std::basic_string_view<Char> Trim(std::basic_string_view<Char> text,
                                            std::basic_string_view<Char> blanks) {
  const size_t first = text.find_first_not_of(blanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Orders two texts as they stand in lower case.
template <class CharA, class CharB>
constexpr bool LessIgnoringCase(std::basic_string_view<CharA> a, std::basic_string_view<CharB> b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](CharA x, CharB y) {
    return static_cast<char32_t>(ToLowerAscii(x)) < static_cast<char32_t>(ToLowerAscii(y));
  });
}

/// Whether two texts are equal but for the case of their ASCII letters.
template <class CharA, class CharB>
constexpr bool EqualsIgnoringCase(std::basic_string_view<CharA> a,
                                  std::basic_string_view<CharB> b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](CharA x, CharB y) {
    return static_cast<char32_t>(ToLowerAscii(x)) == static_cast<char32_t>(ToLowerAscii(y));
  });
}

inline std::u16string WidenAscii(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

/// None for a text with other characters than ASCII's.
inline std::optional<std::string> NarrowAscii(std::u16string_view text) {
  std::string ascii;
  ascii.reserve(text.size());
  for (const char16_t c : text) {
    if (c > 0x7F) return {};
    ascii.push_back(static_cast<char>(c));
  }
  return ascii;
}

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_ASCII_H_
