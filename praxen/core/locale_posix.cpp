// The decimal separator of the locale that the environment chooses.
#include <langinfo.h>
#include <locale.h>  // NOLINT: for newlocale, which <clocale> does not promise.

#include <array>
#include <cstdlib>
#include <string_view>

#include "praxen/core/locale.h"
#include "praxen/core/text.h"
#include "praxen/core/thread_state.h"

namespace praxen::detail {

namespace {

// The variables that choose the locale for numbers, the first that is set and not empty.
constexpr std::array kVariables = {"LC_ALL", "LC_NUMERIC", "LANG"};

std::string_view ChosenLocale() {
  for (const char* const variable : kVariables) {
    const char* const value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return value;
  }
  return {};
}

std::u16string SeparatorOf(const char* localeName) {
  const locale_t locale = newlocale(LC_NUMERIC_MASK, localeName, nullptr);
  if (locale == nullptr) return {};
  std::u16string separator = DecodeSeparator(nl_langinfo_l(RADIXCHAR, locale));
  freelocale(locale);
  return separator;
}

}  // namespace

std::u16string DecodeSeparator(std::string_view bytes) {
  if (bytes.size() == 1) return {static_cast<char16_t>(static_cast<unsigned char>(bytes[0]))};
  std::u16string text = FromUtf8(bytes);
  return text.size() == 1 ? text : std::u16string();
}

// Asked for every number, so the answer is kept until another locale is chosen. A locale that is
// not installed leaves programs in the C locale, and so does this.
std::u16string SystemDecimalSeparator() {
  struct Answer final : KeptByThread {
    bool known = false;
    std::string locale;
    std::u16string separator;
  };
  Answer& answer = ThreadState::Current().Keep<Answer>();
  const std::string_view chosen = ChosenLocale();
  if (answer.known && answer.locale == chosen) return answer.separator;
  answer.locale = chosen;
  answer.separator = SeparatorOf(answer.locale.c_str());
  if (answer.separator.empty()) answer.separator = SeparatorOf("C");
  answer.known = true;
  return answer.separator;
}

}  // namespace praxen::detail
