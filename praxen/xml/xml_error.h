// Why a document could not be loaded, and where.
#ifndef PRAXEN_XML_XML_ERROR_H_
#define PRAXEN_XML_XML_ERROR_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "praxen/core/place.h"

namespace praxen::detail {

/// What made a load fail.
struct XmlParseError {
  /// A sentence, followed by the place in the form " (line 12, column 8)" if there is one; empty
  /// after a successful load.
  std::u16string reason;
  /// In the text; none when the schema is at fault.
  Place place;
  bool isOfSchema = false;
};

/// The error with the place added to `sentence`.
XmlParseError MakeXmlError(std::u16string sentence, Place place);

/// A character as "U+" and at least four hexadecimal digits.
std::u16string XmlCodePoint(uint32_t character);

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_ERROR_H_
