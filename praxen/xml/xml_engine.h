// The validating parser of a document, which is that of Xerces.
#ifndef PRAXEN_XML_XML_ENGINE_H_
#define PRAXEN_XML_XML_ENGINE_H_

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <xercesc/framework/XMLEntityHandler.hpp>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/internal/SGXMLScanner.hpp>
#include <xercesc/util/StringPool.hpp>
#include <xercesc/validators/common/GrammarResolver.hpp>

#include "praxen/xml/xerces_use.h"
#include "praxen/xml/xml_error.h"
#include "praxen/xml/xml_memory.h"
#include "praxen/xml/xml_reporter.h"
#include "praxen/xml/xml_schema_source.h"
#include "praxen/xml/xml_tree.h"
#include "praxen/xml/xml_tree_builder.h"

namespace praxen::detail {

/// How a load ended.
struct XmlLoadResult {
  /// The reason is empty when the load succeeded.
  XmlParseError error;
  bool rootDeclared = false;
};

/// Keeps the parser of documents from opening files and connections: schemas are not found,
/// entities are empty.
class NoEntities final : public xercesc::XMLEntityHandler {
 public:
  xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* resource) override;
  bool expandSystemId(const XMLCh*, xercesc::XMLBuffer&) override { return false; }
  void endInputSource(const xercesc::InputSource&) override {}
  void startInputSource(const xercesc::InputSource&) override {}
  void resetEntities() override {}
};

/// The compiled schema, with a pool of namespaces that can be made anew.
class XmlGrammarPool final : public xercesc::XMLGrammarPoolImpl {
 public:
  using XMLGrammarPoolImpl::XMLGrammarPoolImpl;

  /// Makes what Xerces leaves to the first element of a type, so that no document has to wait for
  /// it. What would take too long is told to the reporter.
  void CompleteTypes(XmlReporter& reporter);
  /// Puts a pool that has the namespaces of the schema alone in the place of the one before.
  void RenewNamespaces();
  xercesc::XMLStringPool* getURIStringPool() override {
    return namespaces_ != nullptr ? namespaces_.get() : XMLGrammarPoolImpl::getURIStringPool();
  }

 private:
  std::unique_ptr<xercesc::XMLStringPool> namespaces_;
};

/// A parser with a compiled schema, for one load after the other. What documents leave in its
/// tables and buffers is given up before it is much.
class XmlEngine {
 public:
  /// Compiles the schema. Where `schemaError` gives a reason afterwards, nothing can be loaded.
  /// Here as in `Load`, std::bad_alloc is raised when memory runs out.
  static std::unique_ptr<XmlEngine> Make(const XmlSchemaSource& schema);
  XmlEngine(const XmlEngine&) = delete;
  XmlEngine& operator=(const XmlEngine&) = delete;
  ~XmlEngine();

  const XmlParseError& schemaError() const { return schemaError_; }
  /// Adds the nodes of a checked text to an empty tree. The names of the nodes are valid until the
  /// next load.
  XmlLoadResult Load(std::u16string_view text, XmlTree& tree);
  /// Whether the engine has to make room for a new one, not having finished a load.
  bool retired() const { return retired_; }

 private:
  explicit XmlEngine(const XmlSchemaSource& schema);

  void CompileWithinBudget(const XmlSchemaSource& schema);
  void Compile(const XmlSchemaSource& schema);
  void Parse(std::u16string_view text, XmlTree& tree);
  void MakeScanner();
  void GiveUpScanner();
  void RequireWithinLimits();

  /// Everything else needs Xerces up to its end.
  const XercesUse xerces_;
  /// Too large to stand in the engine.
  const std::unique_ptr<XmlMemory> memory_ = std::make_unique_for_overwrite<XmlMemory>();
  /// Held while the members after it are destroyed.
  std::optional<XmlMemory::Release> release_;
  NoEntities entities_;
  XmlReporter reporter_;
  XmlTreeBuilder builder_;
  XmlGrammarPool pool_{memory_.get()};
  std::unique_ptr<xercesc::GrammarResolver> grammars_;
  std::unique_ptr<xercesc::SGXMLScanner> scanner_;
  XmlParseError schemaError_;
  /// How many characters the scanner has read since it was new.
  size_t readCharacters_ = 0;
  bool retired_ = false;
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_ENGINE_H_
