// Comparing ASCII names without regard to case, in either kind of text.

#ifndef PRAXEN_PLATFORM_AUTOMATION_TEXT_H_
#define PRAXEN_PLATFORM_AUTOMATION_TEXT_H_

#include <algorithm>
#include <string_view>

namespace praxen {

// The lower case of an ASCII letter; any other character as it is.
template <class Char>
constexpr Char ToLowerAscii(Char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<Char>(c + ('a' - 'A')) : c;
}

// Whether two texts are equal but for the case of their ASCII letters.
template <class CharA, class CharB>
constexpr bool EqualsIgnoringCase(std::basic_string_view<CharA> a,
                                  std::basic_string_view<CharB> b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](CharA x, CharB y) {
    return static_cast<char32_t>(ToLowerAscii(x)) == static_cast<char32_t>(ToLowerAscii(y));
  });
}

}  // namespace praxen

#endif  // PRAXEN_PLATFORM_AUTOMATION_TEXT_H_
