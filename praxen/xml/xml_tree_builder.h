// Makes a tree of what the parser reports.
#ifndef PRAXEN_XML_XML_TREE_BUILDER_H_
#define PRAXEN_XML_XML_TREE_BUILDER_H_

#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>
#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLDocumentHandler.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>

#include "praxen/xml/xml_foreign_names.h"
#include "praxen/xml/xml_name.h"
#include "praxen/xml/xml_tree.h"

namespace praxen::detail {

/// Adds nodes to a tree as the parser reports them.
///
/// What is known about a declared element (its name, its attributes' names and defaults) is
/// remembered, so that usual elements need no look-up by name and no copies of defaults.
class XmlTreeBuilder final : public xercesc::XMLDocumentHandler {
 public:
  /// Prepares for a load into `tree`, which has to be empty.
  void Begin(XmlTree& tree);

  /// How many start tags were reported.
  size_t startedElements() const { return startedElements_; }
  /// The name of the innermost open element; empty outside the root.
  std::u16string_view openElement() const;
  bool rootDeclared() const { return rootDeclared_; }
  /// Whether an attribute value was longer than values may be.
  bool hasLongValue() const { return hasLongValue_; }
  /// What was met that the schema does not declare.
  const XmlForeignNames& foreignNames() const { return foreignNames_; }
  /// Prepares for a new parser, which uses the same declarations.
  void BeginParser();
  /// Called after each start tag and processing instruction.
  std::function<void()> onMarkup;

  void startElement(const xercesc::XMLElementDecl& declaration, unsigned int, const XMLCh* prefix,
                    const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                    XMLSize_t attributeCount, bool isEmpty, bool isRoot) override;
  void endElement(const xercesc::XMLElementDecl&, unsigned int, bool, const XMLCh*) override;
  void docCharacters(const XMLCh* characters, XMLSize_t length, bool) override;
  void docComment(const XMLCh* comment) override;
  void docPI(const XMLCh* target, const XMLCh* data) override;

  void ignorableWhitespace(const XMLCh*, XMLSize_t, bool) override {}
  void startDocument() override {}
  void endDocument() override {}
  void resetDocument() override {}
  void startEntityReference(const xercesc::XMLEntityDecl&) override {}
  void endEntityReference(const xercesc::XMLEntityDecl&) override {}
  void XMLDecl(const XMLCh*, const XMLCh*, const XMLCh*, const XMLCh*) override {}

 private:
  struct KnownAttribute {
    XmlName name;
    std::u16string_view defaultValue = {};
    /// The number of the last element that has it.
    size_t givenIn = 0;
  };
  struct KnownElement {
    XmlName name = nullptr;
    /// In the order of first appearance, which the next element mostly repeats.
    std::vector<KnownAttribute> attributes;
  };

  void AddNamespace(std::u16string_view prefix, std::u16string_view name);
  KnownElement& Known(const xercesc::XMLElementDecl& declaration);
  KnownAttribute* Find(KnownElement& element, size_t& cursor, const xercesc::XMLAttr& attribute);
  std::u16string_view DefaultValue(KnownAttribute* attribute, const XMLCh* value);
  std::u16string_view Qualified(const XMLCh* prefix, const XMLCh* local);

  XmlTree* tree_ = nullptr;
  size_t startedElements_ = 0;
  /// The number of the element over all loads.
  size_t element_ = 0;
  bool rootDeclared_ = false;
  bool hasLongValue_ = false;

  XmlNameUser schemaNames_;
  XmlForeignNames foreignNames_;
  std::unordered_map<const xercesc::XMLElementDecl*, KnownElement> known_;
  std::set<std::u16string, std::less<>> defaultValues_;
  std::u16string qualifiedName_;
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_TREE_BUILDER_H_
