// Place, a position in a text as people count it.
#ifndef PRAXEN_CORE_PLACE_H_
#define PRAXEN_CORE_PLACE_H_

#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "praxen/core/language.h"

namespace praxen {

/// A place in a text, counted from 1; a line of 0 means that the place is not known. Columns count
/// UTF-16 units, and CR LF is one line end.
struct Place {
  uint32_t line = 0;
  uint32_t column = 0;

  friend auto operator<=>(const Place&, const Place&) = default;
};

/// The place as "line 12, column 8".
std::u16string PlaceText(Place place);

/// The place of the character at `offset`.
Place PlaceAt(std::u16string_view text, size_t offset);

/// The places of characters that are asked for in their order, in one walk over the text.
class PlaceCounter {
 public:
  explicit PlaceCounter(std::u16string_view text) : text_(text) {}

  /// The place of the character at `offset`, which is not before the one asked for last.
  Place At(size_t offset);

 private:
  const std::u16string_view text_;
  size_t offset_ = 0;
  Place place_{1, 1};
};

/// The offset of the character at `place`, at most the length of the text.
size_t OffsetAt(std::u16string_view text, Place place);

}  // namespace praxen

#endif  // PRAXEN_CORE_PLACE_H_
