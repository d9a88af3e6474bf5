// Places in a text, and reasons that name them.
#include "praxen/platform/xml_error.h"

#include <algorithm>
#include <utility>

namespace praxen {
namespace {

// Whether a line ends with the character at `offset`.
bool EndsLine(std::u16string_view text, size_t offset) {
  if (text[offset] == u'\n') return true;
  if (text[offset] != u'\r') return false;
  return offset + 1 == text.size() || text[offset + 1] != u'\n';
}

}  // namespace

XmlPosition XmlPositionAt(std::u16string_view text, size_t offset) {
  XmlPosition position{1, 1};
  offset = std::min(offset, text.size());
  for (size_t i = 0; i < offset; ++i) {
    if (EndsLine(text, i)) {
      position = {position.line + 1, 1};
    } else {
      ++position.column;
    }
  }
  return position;
}

size_t XmlOffsetAt(std::u16string_view text, XmlPosition position) {
  size_t offset = 0;
  for (uint32_t line = 1; line < position.line && offset < text.size(); ++offset) {
    if (EndsLine(text, offset)) ++line;
  }
  const size_t column = position.column == 0 ? 0 : position.column - 1;
  return std::min(offset + column, text.size());
}

XmlParseError MakeXmlError(std::u16string sentence, XmlPosition position) {
  if (position.line != 0) {
    sentence +=
        u" (line " + XmlDecimal(position.line) + u", column " + XmlDecimal(position.column) + u")";
  }
  return {std::move(sentence), position};
}

std::u16string XmlDecimal(size_t number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

std::u16string XmlCodePoint(uint32_t character) {
  std::u16string digits;
  for (; character != 0 || digits.size() < 4; character /= 16) {
    digits.insert(digits.begin(), u"0123456789ABCDEF"[character % 16]);
  }
  return u"U+" + digits;
}

}  // namespace praxen
