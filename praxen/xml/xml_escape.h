// The references that stand for characters in markup.
#ifndef PRAXEN_XML_XML_ESCAPE_H_
#define PRAXEN_XML_XML_ESCAPE_H_

#include <string>
#include <string_view>

namespace praxen::detail {

/// What a written document escapes in text, and in the values of attributes.
inline constexpr std::u16string_view kEscapedInText = u"&<>";
inline constexpr std::u16string_view kEscapedInValues = u"&<>\"'";

/// What is escaped in a text that becomes markup, which is read once more.
inline constexpr std::u16string_view kEscapedInMarkup = u"&<>\r";

/// The reference to a character that markup gives a meaning, or that a parser would change; empty
/// for any other.
constexpr std::u16string_view XmlReference(char16_t character) {
  switch (character) {
    case u'&':
      return u"&amp;";
    case u'<':
      return u"&lt;";
    case u'>':
      return u"&gt;";
    case u'"':
      return u"&quot;";
    case u'\'':
      return u"&apos;";
    case u'\t':
      return u"&#9;";
    case u'\n':
      return u"&#10;";
    case u'\r':
      return u"&#13;";
    default:
      return {};
  }
}

/// The text with references for those of its characters that are among `special`, each of which has
/// one.
std::u16string EscapeXml(std::u16string_view text, std::u16string_view special);

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_ESCAPE_H_
