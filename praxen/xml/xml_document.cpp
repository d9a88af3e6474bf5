// Loading of a document, and the way through it.
#include "praxen/xml/xml_document.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "praxen/xml/xml_check.h"
#include "praxen/xml/xml_engine.h"

namespace praxen::detail {
namespace {

// Searches from the cursor on and leaves it after what is found.
template <class Matches>
const XmlAttribute* Search(std::span<const XmlAttribute> attributes, uint32_t& cursor,
                           Matches matches) {
  const auto count = static_cast<uint32_t>(attributes.size());
  const uint32_t start = cursor < count ? cursor : 0;
  for (uint32_t i = 0, at = start; i < count; ++i, at = at + 1 < count ? at + 1 : 0) {
    if (!matches(attributes[at])) continue;
    cursor = at + 1;
    return &attributes[at];
  }
  return nullptr;
}

}  // namespace

std::u16string_view XmlNode::nodeName() const {
  return tree_ == nullptr ? std::u16string_view() : std::u16string_view(*name());
}

XmlNodeKind XmlNode::kind() const {
  if (tree_ == nullptr) return XmlNodeKind::Text;
  return static_cast<XmlNodeKind>(tree_->record(node_).kind);
}

std::u16string_view XmlNode::nodeValue() const {
  return tree_ == nullptr ? std::u16string_view() : tree_->text(node_);
}

XmlNode XmlNode::firstChild() const {
  return tree_ == nullptr ? XmlNode() : XmlNode(tree_, tree_->firstChild(node_));
}

XmlNode XmlNode::nextSibling() const {
  return tree_ == nullptr ? XmlNode() : XmlNode(tree_, tree_->record(node_).next);
}

XmlNode XmlNode::childNode(size_t index) const {
  XmlNode child = firstChild();
  for (; child && index > 0; --index) child = child.nextSibling();
  return child;
}

const XmlAttribute* XmlNode::attribute(XmlName name) const {
  return Search(attributes(), cursor_, [&](const XmlAttribute& a) { return a.name == name; });
}

const XmlAttribute* XmlNode::attribute(std::u16string_view name) const {
  return Search(attributes(), cursor_, [&](const XmlAttribute& a) { return *a.name == name; });
}

std::span<const XmlAttribute> XmlNode::attributes() const {
  return tree_ == nullptr ? std::span<const XmlAttribute>() : tree_->attributes(node_);
}

std::u16string XmlNode::Markup() const {
  return tree_ == nullptr ? std::u16string() : tree_->Markup(node_);
}

Place XmlNode::place() const { return tree_ == nullptr ? Place() : tree_->place(node_); }

XmlDocument::XmlDocument(std::function<XmlSchemaSource()> schema) : schema_(std::move(schema)) {}

XmlDocument::~XmlDocument() = default;

bool XmlDocument::LoadXML(std::u16string_view text) {
  Clear();
  error_ = {};
  constexpr char16_t kByteOrderMark = 0xFEFF;
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(1);
  if (!PrepareEngine()) return false;
  if (std::optional<XmlParseError> fault = CheckXmlText(text)) {
    error_ = *std::move(fault);
    return false;
  }
  // Whatever the load ends with, nothing is left of a document that was not read to its end.
  struct Unfinished {
    ~Unfinished() {
      if (document != nullptr) document->Clear();
    }
    XmlDocument* document;
  } unfinished{this};
  tree_->Clear(text);
  XmlLoadResult result = engine_->Load(text, *tree_);
  error_ = std::move(result.error);
  if (!error_.reason.empty()) return false;
  rootDeclared_ = result.rootDeclared;
  unfinished.document = nullptr;
  return true;
}

XmlNode XmlDocument::documentElement() const {
  return tree_ == nullptr || tree_->size() == 0 ? XmlNode() : XmlNode(tree_.get(), 0);
}

void XmlDocument::Clear() {
  if (tree_ != nullptr) tree_->Clear();
  rootDeclared_ = false;
}

bool XmlDocument::PrepareEngine() {
  if (engine_ != nullptr && !engine_->retired()) return true;
  error_ = schemaError_;
  if (!error_.reason.empty()) return false;
  const XmlSchemaSource schema = schema_();
  tree_ = std::make_unique<XmlTree>(schema.targetNamespace);
  // A retired engine goes when the new one stands: what all engines share cannot be made anew when
  // memory is short.
  std::unique_ptr<XmlEngine> engine = XmlEngine::Make(schema);
  error_ = schemaError_ = engine->schemaError();
  if (!error_.reason.empty()) return false;
  engine_ = std::move(engine);
  return true;
}

}  // namespace praxen::detail
