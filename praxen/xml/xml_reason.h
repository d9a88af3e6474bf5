// Turns what the parser complains about into a reason that names the place.
#ifndef PRAXEN_XML_XML_REASON_H_
#define PRAXEN_XML_XML_REASON_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "praxen/xml/xml_error.h"

namespace praxen::detail {

/// The list of the parser's to which the code of a complaint belongs.
enum class XmlRuleList : uint8_t { Xml, Schema, Other };

/// A complaint of the parser.
struct XmlComplaint {
  XmlRuleList list = XmlRuleList::Other;
  unsigned int code = 0;
  /// Whether the text is not even well-formed.
  bool isFatal = false;
  std::u16string text;
  /// Where the parser was, which is after what it complains about.
  Place place;
  /// Of a schema, the document in which it was.
  std::u16string document = {};
};

/// How far the parser came.
struct XmlProgress {
  /// How many elements were reported before the complaint.
  size_t startedElements = 0;
  /// The innermost of them that is open.
  std::u16string_view openElement;
};

/// The reason for a complaint about a document.
XmlParseError ExplainXmlComplaint(std::u16string_view text, const XmlComplaint& complaint,
                                  const XmlProgress& progress);

/// The reason for a complaint about a schema document. It names the place there, which is none in
/// the document that was to be read.
XmlParseError ExplainSchemaComplaint(std::u16string_view systemId, const XmlComplaint& complaint);

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_REASON_H_
