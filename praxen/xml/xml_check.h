// What is refused by looking at a document once before it is parsed.
#ifndef PRAXEN_XML_XML_CHECK_H_
#define PRAXEN_XML_XML_CHECK_H_

#include <optional>
#include <string_view>

#include "praxen/xml/xml_error.h"

namespace praxen::detail {

/// The reason to refuse a text without parsing it: it is empty, has a document type declaration or
/// a character that XML does not allow, or exceeds a limit. Other faults are the parser's to find.
std::optional<XmlParseError> CheckXmlText(std::u16string_view text);

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_CHECK_H_
