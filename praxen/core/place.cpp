// Lines and columns of a text.
#include "praxen/core/place.h"

#include <algorithm>

#include "praxen/core/numbers.h"

namespace praxen {

using namespace detail;

namespace {

// Whether a line ends with the character at `offset`.
bool EndsLine(std::u16string_view text, size_t offset) {
  if (text[offset] == u'\n') return true;
  if (text[offset] != u'\r') return false;
  return offset + 1 == text.size() || text[offset + 1] != u'\n';
}

}  // namespace

std::u16string PlaceText(Place place) {
  return u"line " + DecimalText(place.line) + u", column " + DecimalText(place.column);
}

Place PlaceAt(std::u16string_view text, size_t offset) { return PlaceCounter(text).At(offset); }

Place PlaceCounter::At(size_t offset) {
  for (const size_t end = std::min(offset, text_.size()); offset_ < end; ++offset_) {
    if (EndsLine(text_, offset_)) {
      place_ = {place_.line + 1, 1};
    } else {
      ++place_.column;
    }
  }
  return place_;
}

size_t OffsetAt(std::u16string_view text, Place place) {
  size_t offset = 0;
  for (uint32_t line = 1; line < place.line && offset < text.size(); ++offset) {
    if (EndsLine(text, offset)) ++line;
  }
  const size_t column = place.column == 0 ? 0 : place.column - 1;
  return std::min(offset + column, text.size());
}

}  // namespace praxen
