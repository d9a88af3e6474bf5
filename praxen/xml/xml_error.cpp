// Places in a text, and reasons that name them.
#include "praxen/xml/xml_error.h"

#include <utility>

namespace praxen::detail {
XmlParseError MakeXmlError(std::u16string sentence, Place place) {
  if (place.line != 0) sentence += u" (" + PlaceText(place) + u")";
  return {std::move(sentence), place};
}

std::u16string XmlCodePoint(uint32_t character) {
  std::u16string digits;
  for (; character != 0 || digits.size() < 4; character /= 16) {
    digits.insert(digits.begin(), u"0123456789ABCDEF"[character % 16]);
  }
  return u"U+" + digits;
}

}  // namespace praxen::detail
