// The validating parser behind a document; nothing of it shows here.
#ifndef PRAXEN_XML_XML_ENGINE_H_
#define PRAXEN_XML_XML_ENGINE_H_

#include <memory>
#include <string>
#include <string_view>

#include "praxen/xml/xml_error.h"
#include "praxen/xml/xml_tree.h"

namespace praxen::detail {

/// An XML Schema.
struct XmlSchemaSource {
  std::u16string targetNamespace;
  /// The bytes of the schema document. Nothing that it includes or imports is looked for.
  std::string content;
  /// What errors call the schema document.
  std::string systemId;
};

/// How a load ended.
struct XmlLoadResult {
  /// The reason is empty when the load succeeded.
  XmlParseError error;
  bool rootDeclared = false;
};

/// A parser with a compiled schema, for one load after the other.
class XmlEngine {
 public:
  /// Compiles the schema. Where `schemaError` gives a reason afterwards, nothing can be loaded.
  /// Here as in `load`, want of memory raises std::bad_alloc.
  explicit XmlEngine(const XmlSchemaSource& schema);
  ~XmlEngine();

  const XmlParseError& schemaError() const;
  /// Adds the nodes of a checked text to an empty tree. The names of the nodes are valid until the
  /// next load.
  XmlLoadResult load(std::u16string_view text, XmlTree& tree);
  /// Whether the engine has to make room for a new one, having grown or not finished a load.
  bool retired() const;

 private:
  class Parser;

  std::unique_ptr<Parser> parser_;
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_ENGINE_H_
