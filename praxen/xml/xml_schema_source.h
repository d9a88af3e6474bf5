// The schema against which documents are validated, before it is compiled.
#ifndef PRAXEN_XML_XML_SCHEMA_SOURCE_H_
#define PRAXEN_XML_XML_SCHEMA_SOURCE_H_

#include <functional>
#include <optional>
#include <string>

namespace praxen::detail {

/// An XML Schema.
struct XmlSchemaSource {
  std::u16string targetNamespace;
  /// The bytes of the schema document, in UTF-8, UTF-16 or ISO-8859-1.
  std::string content;
  /// What errors call the schema document.
  std::u16string systemId;
  /// The bytes of the file of that name that lies beside the schema; nothing when there is none.
  /// Documents that a schema includes or imports are asked for here and nowhere else.
  std::function<std::optional<std::string>(const std::u16string& name)> neighbour = nullptr;
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_SCHEMA_SOURCE_H_
