// The adding of nodes to a tree, and the way to them.
#include "praxen/xml/xml_tree.h"

#include "praxen/xml/xml_markup.h"

namespace praxen::detail {
namespace {

XmlName TextName() {
  static const XmlName name = InternXmlName(u"#text");
  return name;
}

XmlName CommentName() {
  static const XmlName name = InternXmlName(u"#comment");
  return name;
}

}  // namespace

XmlTree::XmlTree(std::u16string targetNamespace) : targetNamespace_(std::move(targetNamespace)) {}

void XmlTree::Clear(std::u16string_view source) {
  constexpr size_t kKeptCharacters = 1U << 16;
  source_ = source;
  if (blocks_.size() > 1) blocks_.resize(1);
  size_ = 0;
  attributes_.Clear();
  characters_.Clear();
  open_.clear();
  text_.clear();
  if (text_.capacity() > kKeptCharacters) text_.shrink_to_fit();
  extents_ = {};
  recorder_ = nullptr;
  addedDeclarations_ = 0;
}

std::u16string_view XmlTree::Copy(std::u16string_view characters) {
  char16_t* const kept = characters_.Allocate(characters.size());
  std::copy(characters.begin(), characters.end(), kept);
  return {kept, characters.size()};
}

XmlRecord& XmlTree::NewNode(XmlName name, XmlNodeKind kind, size_t count) {
  const uint32_t number = size_;
  if (number >> kBlockBits == blocks_.size()) {
    blocks_.push_back(std::make_unique_for_overwrite<XmlRecord[]>(kBlockSize));
  }
  if (!open_.empty()) {
    Open& parent = open_.back();
    at(parent.element).hasChildren = 1;
    if (parent.lastChild != kNone) at(parent.lastChild).next = number;
    parent.lastChild = number;
  }
  ++size_;
  XmlRecord& node = at(number);
  node.name = name;
  node.text = nullptr;
  node.next = kNone;
  node.count = static_cast<uint32_t>(count) & ((1U << 29) - 1);
  node.kind = static_cast<uint32_t>(kind) & 3U;
  node.hasChildren = 0;
  return node;
}

void XmlTree::AddElement(XmlName name, std::span<const XmlAttribute> attributes) {
  EndText(false);
  NewNode(name, XmlNodeKind::Element, attributes.size()).attributes = attributes.data();
  open_.push_back({size_ - 1, kNone});
}

void XmlTree::EndElement() {
  EndText(open_.back().lastChild == kNone);
  open_.pop_back();
}

void XmlTree::AddComment(std::u16string_view characters) {
  if (open_.empty()) return;
  EndText(false);
  NewNode(CommentName(), XmlNodeKind::Comment, characters.size()).text = Copy(characters).data();
}

void XmlTree::AddInstruction(XmlName target, std::u16string_view content) {
  if (open_.empty()) return;
  EndText(false);
  NewNode(target, XmlNodeKind::Instruction, content.size()).text = Copy(content).data();
}

void XmlTree::EndText(bool isOnlyChild) {
  if (text_.empty()) return;
  if (isOnlyChild || !IsXmlBlank(text_)) {
    NewNode(TextName(), XmlNodeKind::Text, text_.size()).text = Copy(text_).data();
  }
  text_.clear();
}

std::span<const XmlAttribute> XmlTree::attributes(uint32_t node) const {
  const XmlRecord& found = record(node);
  if (found.kind != static_cast<uint32_t>(XmlNodeKind::Element)) return {};
  return {found.attributes, found.count};
}

std::u16string_view XmlTree::text(uint32_t node) const {
  const XmlRecord& found = record(node);
  if (found.kind == static_cast<uint32_t>(XmlNodeKind::Element)) return {};
  return {found.text, found.count};
}

}  // namespace praxen::detail
