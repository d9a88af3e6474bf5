// The schema against which documents are validated, before it is compiled.
#ifndef PRAXEN_XML_XML_SCHEMA_SOURCE_H_
#define PRAXEN_XML_XML_SCHEMA_SOURCE_H_

#include <string>

namespace praxen::detail {

/// An XML Schema.
struct XmlSchemaSource {
  std::u16string targetNamespace;
  /// The bytes of the schema document. Nothing that it includes or imports is looked for.
  std::string content;
  /// What errors call the schema document.
  std::string systemId;
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_SCHEMA_SOURCE_H_
