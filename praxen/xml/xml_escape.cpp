// Escaping where it need not be fast.
#include "praxen/xml/xml_escape.h"

namespace praxen::detail {

std::u16string EscapeXml(std::u16string_view text, std::u16string_view special) {
  std::u16string escaped;
  for (;;) {
    const size_t plain = text.find_first_of(special);
    escaped.append(text.substr(0, plain));
    if (plain == std::u16string_view::npos) return escaped;
    escaped.append(XmlReference(text[plain]));
    text.remove_prefix(plain + 1);
  }
}

}  // namespace praxen::detail
