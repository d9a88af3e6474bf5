// Asks the system for the decimal separator.
#include "praxen/platform/locale.h"

#include <atomic>

#ifdef _WIN32
#include <windows.h>
#else
#include <langinfo.h>
#include <locale.h>

#include <array>
#include <cstdlib>
#include <string_view>
#endif

namespace praxen {
namespace {

std::atomic<DecimalSeparatorQuery> substitute = nullptr;

#ifdef _WIN32

std::u16string SystemSeparator() {
  char narrow[5];
  const int size = GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, narrow, sizeof(narrow));
  if (size <= 1) return {};
  wchar_t wide[sizeof(narrow)];
  const int length = MultiByteToWideChar(CP_ACP, 0, narrow, size - 1, wide, sizeof(narrow));
  return {wide, wide + length};
}

#else

// The variables that choose the locale for numbers, the first that is set and not empty.
constexpr std::array kVariables = {"LC_ALL", "LC_NUMERIC", "LANG"};

std::string_view ChosenLocale() {
  for (const char* const variable : kVariables) {
    const char* const value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return value;
  }
  return {};
}

// Decodes one UTF-8 character below U+10000; other encodings have separators of one byte only.
std::u16string Decoded(std::string_view bytes) {
  const auto byte = [&](size_t i) { return static_cast<unsigned char>(bytes[i]); };
  if (bytes.size() == 2 && (byte(0) & 0xE0) == 0xC0) {
    return {static_cast<char16_t>((byte(0) & 0x1F) << 6 | (byte(1) & 0x3F))};
  }
  if (bytes.size() == 3 && (byte(0) & 0xF0) == 0xE0) {
    return {
        static_cast<char16_t>((byte(0) & 0x0F) << 12 | (byte(1) & 0x3F) << 6 | (byte(2) & 0x3F))};
  }
  return bytes.size() == 1 ? std::u16string{static_cast<char16_t>(byte(0))} : std::u16string();
}

std::u16string SeparatorOf(const char* localeName) {
  const locale_t locale = newlocale(LC_NUMERIC_MASK, localeName, nullptr);
  if (locale == nullptr) return {};
  std::u16string separator = Decoded(nl_langinfo_l(RADIXCHAR, locale));
  freelocale(locale);
  return separator;
}

// Asked for every number, so the answer is kept until another locale is chosen. A locale that is
// not installed leaves programs in the C locale, and so does this.
std::u16string SystemSeparator() {
  struct Answer {
    bool known = false;
    std::string locale;
    std::u16string separator;
  };
  thread_local Answer answer;
  const std::string_view chosen = ChosenLocale();
  if (answer.known && answer.locale == chosen) return answer.separator;
  answer.locale = chosen;
  answer.separator = SeparatorOf(answer.locale.c_str());
  if (answer.separator.empty()) answer.separator = SeparatorOf("C");
  answer.known = true;
  return answer.separator;
}

#endif

}  // namespace

std::u16string GetDecimalSeparator() {
  const DecimalSeparatorQuery query = substitute.load();
  return query != nullptr ? query() : SystemSeparator();
}

DecimalSeparatorQuery SetDecimalSeparatorQuery(DecimalSeparatorQuery query) {
  return substitute.exchange(query);
}

}  // namespace praxen
