// Why a document could not be loaded, and where.
#ifndef PRAXEN_PLATFORM_XML_ERROR_H_
#define PRAXEN_PLATFORM_XML_ERROR_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace praxen {

/// A place in a text, counted from 1; 0 stands for no place. Columns count UTF-16 units, and CR LF
/// is one line end.
struct XmlPosition {
  uint32_t line = 0;
  uint32_t column = 0;

  friend auto operator<=>(const XmlPosition&, const XmlPosition&) = default;
};

/// What made a load fail.
struct XmlParseError {
  /// A sentence, followed by the place in the form " (line 12, column 8)" if there is one; empty
  /// after a successful load.
  std::u16string reason;
  /// In the text; none when the schema is at fault.
  XmlPosition position;
};

/// The position of the character at `offset`.
XmlPosition XmlPositionAt(std::u16string_view text, size_t offset);

/// The offset of the character at `position`, at most the length of the text.
size_t XmlOffsetAt(std::u16string_view text, XmlPosition position);

/// The error with the place added to `sentence`.
XmlParseError MakeXmlError(std::u16string sentence, XmlPosition position);

/// The decimal digits of a number.
std::u16string XmlDecimal(size_t number);

/// A character as "U+" and at least four hexadecimal digits.
std::u16string XmlCodePoint(uint32_t character);

}  // namespace praxen

#endif  // PRAXEN_PLATFORM_XML_ERROR_H_
