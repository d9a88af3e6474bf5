// The document that reading works on: an XML text, validated against a schema, as a tree.
#ifndef PRAXEN_XML_XML_DOCUMENT_H_
#define PRAXEN_XML_XML_DOCUMENT_H_

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "praxen/xml/xml_error.h"
#include "praxen/xml/xml_name.h"
#include "praxen/xml/xml_schema_source.h"
#include "praxen/xml/xml_tree.h"

namespace praxen::detail {

class XmlEngine;

/// A node of a document, or an absent one: what is asked of an absent node is absent or empty. A
/// light value, valid until its document loads again or is destroyed.
class XmlNode {
 public:
  XmlNode() = default;
  XmlNode(const XmlTree* tree, uint32_t node)
      : tree_(node == XmlTree::kNone ? nullptr : tree), node_(node) {}

  explicit operator bool() const { return tree_ != nullptr; }
  /// Nodes are numbered from 0 in document order.
  uint32_t number() const { return node_; }
  friend bool operator==(const XmlNode& a, const XmlNode& b) {
    return a.tree_ == b.tree_ && (a.tree_ == nullptr || a.node_ == b.node_);
  }

  /// The name with its prefix, "#text", "#comment", or the target of a processing instruction; null
  /// for an absent node.
  XmlName name() const { return tree_ == nullptr ? nullptr : tree_->record(node_).name; }
  std::u16string_view nodeName() const;
  /// An absent node is taken for a text.
  XmlNodeKind kind() const;
  /// The content of a text, a comment or a processing instruction; empty for an element.
  std::u16string_view nodeValue() const;
  XmlNode firstChild() const;
  XmlNode nextSibling() const;
  /// The child at a 0-based index, found by walking.
  XmlNode childNode(size_t index) const;

  /// The attribute of that name with its prefix, or null. Attributes that are asked for in document
  /// order are found at once, and others by a search.
  const XmlAttribute* attribute(XmlName name) const;
  const XmlAttribute* attribute(std::u16string_view name) const;
  /// First those that the text gives, namespace declarations included, then the schema's defaults.
  std::span<const XmlAttribute> attributes() const;

  /// The node as markup that stands by itself; see `XmlTree::Markup`. The first call on a document
  /// walks its source once.
  std::u16string Markup() const;
  /// Where the node begins in the source. Every call walks the source up to there.
  Place place() const;
  /// The same as an offset, and that of an attribute of the node, which has to be there.
  size_t offset() const { return tree_->offset(node_); }
  size_t offsetOf(const XmlAttribute& attribute) const { return tree_->offset(node_, attribute); }

  /// Who is told what is read of the document; null while nobody is.
  LossRecorder* recorder() const { return tree_ == nullptr ? nullptr : tree_->recorder(); }

 private:
  const XmlTree* tree_ = nullptr;
  uint32_t node_ = 0;
  /// Where the next attribute is looked for first.
  mutable uint32_t cursor_ = 0;
};

/// An XML document in memory, made by validating a text against a schema.
///
/// The attributes that the schema gives a default are there on every element. Adjoining text,
/// references and CDATA sections are one text node. Blanks between other nodes are dropped; text
/// that is all an element holds is kept to the character. Comments and processing instructions are
/// nodes. The encoding that the text declares is ignored. Nothing outside the text is ever read.
/// Loading takes time in proportion to the text; see xml_limits.h for what is refused.
///
/// A document is used by one thread at a time; distinct documents are independent.
class XmlDocument {
 public:
  /// `schema` is called when the first text is loaded. What it throws leaves `LoadXML`; a schema
  /// that cannot be used fails every load.
  explicit XmlDocument(std::function<XmlSchemaSource()> schema);
  XmlDocument(const XmlDocument&) = delete;
  XmlDocument& operator=(const XmlDocument&) = delete;
  ~XmlDocument();

  /// Replaces the document; false when the text or the schema is at fault. The characters of `text`
  /// have to stay alive as long as nodes are used. A leading byte-order mark is passed over and not
  /// counted in positions.
  bool LoadXML(std::u16string_view text);
  /// Why the last load failed.
  const XmlParseError& parseError() const { return error_; }
  /// Whether the schema declares the root element in its namespace. One that it does not declare is
  /// no error of loading, and the document is then only checked to be well-formed.
  bool rootDeclared() const { return rootDeclared_; }
  /// The root element; absent when nothing is loaded.
  XmlNode documentElement() const;
  /// The number of nodes, and the node with a number below it.
  uint32_t size() const { return tree_ == nullptr ? 0 : tree_->size(); }
  XmlNode node(uint32_t number) const { return {tree_.get(), number}; }
  /// The text that is loaded, without a byte-order mark.
  std::u16string_view source() const { return tree_->source(); }
  /// Lets what is read of the loaded document be told to a recorder, or to nobody.
  void Record(LossRecorder* recorder) { tree_->Record(recorder); }
  /// Gives up the nodes and the memory they take.
  void Clear();

 private:
  bool PrepareEngine();

  const std::function<XmlSchemaSource()> schema_;
  /// The engine keeps the names that the tree's nodes have.
  std::unique_ptr<XmlEngine> engine_;
  std::unique_ptr<XmlTree> tree_;
  XmlParseError error_;
  /// Why no engine can be made, once that is known.
  XmlParseError schemaError_;
  bool rootDeclared_ = false;
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_DOCUMENT_H_
