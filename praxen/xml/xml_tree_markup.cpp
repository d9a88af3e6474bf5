// Nodes of a tree as markup, and their places in the source.
#include <algorithm>
#include <utility>

#include "praxen/core/error.h"
#include "praxen/xml/xml_escape.h"
#include "praxen/xml/xml_limits.h"
#include "praxen/xml/xml_markup.h"
#include "praxen/xml/xml_tree.h"

namespace praxen::detail {
namespace {

// A namespace declaration with a blank before it.
std::u16string Declaration(std::u16string_view name, std::u16string_view value) {
  std::u16string out = u" ";
  return out.append(name).append(u"='").append(EscapeXml(value, u"&<'\t\n\r")).append(u"'");
}

std::u16string_view Prefix(std::u16string_view name) {
  const size_t colon = name.find(u':');
  return colon == std::u16string_view::npos ? std::u16string_view() : name.substr(0, colon);
}

// Collects the prefixes that a run of elements in document order uses but does not declare.
class PrefixCollector {
 public:
  void AddElement(size_t begin, size_t end, std::u16string_view name,
                  std::span<const XmlAttribute> attributes) {
    while (!declared_.empty() && declared_.back().end <= begin) declared_.pop_back();
    for (const XmlAttribute& attribute : attributes) {
      if (attribute.specified && attribute.name->starts_with(kDeclares)) {
        declared_.push_back({std::u16string_view(*attribute.name).substr(kDeclares.size()), end});
      }
    }
    Use(Prefix(name));
    for (const XmlAttribute& attribute : attributes) {
      if (attribute.specified) Use(Prefix(*attribute.name));
    }
  }

  std::vector<std::u16string_view> Take() { return std::move(undeclared_); }

 private:
  static constexpr std::u16string_view kDeclares = u"xmlns:";

  struct Declared {
    std::u16string_view prefix;
    size_t end;  // Of the element that declares it.
  };

  void Use(std::u16string_view prefix) {
    if (prefix.empty() || prefix == u"xml" || prefix == u"xmlns") return;
    const auto declares = [&](const Declared& declared) { return declared.prefix == prefix; };
    if (std::any_of(declared_.rbegin(), declared_.rend(), declares)) return;
    if (std::find(undeclared_.begin(), undeclared_.end(), prefix) != undeclared_.end()) return;
    undeclared_.push_back(prefix);
  }

  std::vector<Declared> declared_;
  std::vector<std::u16string_view> undeclared_;
};

const XmlAttribute* Find(std::span<const XmlAttribute> attributes, std::u16string_view name) {
  for (const XmlAttribute& attribute : attributes) {
    if (*attribute.name == name) return &attribute;
  }
  return nullptr;
}

}  // namespace

std::u16string XmlTree::Markup(uint32_t node) const {
  const XmlRecord& found = record(node);
  switch (static_cast<XmlNodeKind>(found.kind)) {
    case XmlNodeKind::Text:
      return EscapeXml(text(node), kEscapedInMarkup);
    case XmlNodeKind::Comment:
      return std::u16string(u"<!--").append(text(node)).append(u"-->");
    case XmlNodeKind::Instruction: {
      std::u16string instruction = u"<?" + *found.name;
      if (found.count != 0) instruction.append(u" ").append(text(node));
      return instruction.append(u"?>");
    }
    default:
      break;
  }
  const Extent& extent = extents()[node];
  const std::u16string declarations = MissingDeclarations(node);
  addedDeclarations_ += declarations.size();
  constexpr size_t kPerCharacter = kMaxXmlAddedDeclarationsPerCharacter;
  if (addedDeclarations_ > kMaxXmlAddedDeclarations + kPerCharacter * source_.size()) {
    throw Overflow().At(place(node));
  }
  std::u16string slice(source_.substr(extent.begin, extent.end - extent.begin));
  return slice.insert(1 + found.name->size(), declarations);
}

Place XmlTree::place(uint32_t node) const { return PlaceAt(source_, extents()[node].begin); }

size_t XmlTree::offset(uint32_t element, const XmlAttribute& attribute) const {
  const Extent& extent = extents()[element];
  const std::u16string_view tag = source_.substr(extent.begin, extent.end - extent.begin);
  XmlRawAttribute given = NextXmlAttribute(tag, 1 + record(element).name->size());
  while (given.offset != std::u16string_view::npos && given.name != *attribute.name) {
    const auto end = static_cast<size_t>(given.value.data() - tag.data()) + given.value.size() + 1;
    given = NextXmlAttribute(tag, end);
  }
  return extent.begin + (given.offset == std::u16string_view::npos ? 0 : given.offset);
}

// Nodes are numbered in document order, so that one walk over the source meets them in turn. The
// dropped blanks are told from text nodes by whose child the next node is.
const std::vector<XmlTree::Extent>& XmlTree::extents() const {
  if (!extents_.empty()) return extents_;
  extents_.reserve(size_);
  std::vector<Open> open;
  const auto isNext = [&](XmlNodeKind kind) {
    const auto next = static_cast<uint32_t>(extents_.size());
    if (next == size_ || record(next).kind != static_cast<uint32_t>(kind)) return false;
    if (open.empty()) return kind == XmlNodeKind::Element;
    const Open& parent = open.back();
    if (parent.lastChild == kNone) return firstChild(parent.element) == next;
    return record(parent.lastChild).next == next;
  };
  const auto add = [&](const XmlMarkup& markup) {
    const auto node = static_cast<uint32_t>(extents_.size());
    extents_.push_back({static_cast<uint32_t>(markup.begin), static_cast<uint32_t>(markup.end),
                        open.empty() ? kNone : open.back().element});
    if (!open.empty()) open.back().lastChild = node;
    return node;
  };
  for (XmlMarkupReader reader(source_); reader.Next();) {
    const XmlMarkup& markup = reader.markup();
    switch (markup.kind) {
      case XmlMarkupKind::Text:
      case XmlMarkupKind::CData:
        if (isNext(XmlNodeKind::Text)) add(markup);
        break;
      case XmlMarkupKind::Comment:
        if (isNext(XmlNodeKind::Comment)) add(markup);
        break;
      case XmlMarkupKind::Instruction:
        if (isNext(XmlNodeKind::Instruction)) add(markup);
        break;
      case XmlMarkupKind::StartTag:
        open.push_back({add(markup), kNone});
        break;
      case XmlMarkupKind::EmptyTag:
        add(markup);
        break;
      case XmlMarkupKind::EndTag:
        extents_[open.back().element].end = static_cast<uint32_t>(markup.end);
        open.pop_back();
        break;
      default:
        break;
    }
  }
  return extents_;
}

std::u16string XmlTree::MissingDeclarations(uint32_t element) const {
  std::u16string declarations;
  for (const std::u16string_view prefix : UndeclaredPrefixes(element)) {
    const std::u16string name = std::u16string(u"xmlns:").append(prefix);
    declarations += Declaration(name, OuterNamespace(element, name));
  }
  if (Find(attributes(element), u"xmlns") != nullptr) return declarations;
  const std::u16string_view standard = OuterNamespace(element, u"xmlns");
  if (standard != targetNamespace_) declarations += Declaration(u"xmlns", standard);
  return declarations;
}

std::vector<std::u16string_view> XmlTree::UndeclaredPrefixes(uint32_t element) const {
  const std::vector<Extent>& places = extents();
  PrefixCollector prefixes;
  const size_t end = places[element].end;
  for (uint32_t node = element; node < size_ && places[node].begin < end; ++node) {
    const XmlRecord& found = record(node);
    if (found.kind != static_cast<uint32_t>(XmlNodeKind::Element)) continue;
    prefixes.AddElement(places[node].begin, places[node].end, *found.name, attributes(node));
  }
  return prefixes.Take();
}

std::u16string_view XmlTree::OuterNamespace(uint32_t element,
                                            std::u16string_view declaration) const {
  const std::vector<Extent>& places = extents();
  for (uint32_t node = places[element].parent; node != kNone; node = places[node].parent) {
    const XmlAttribute* const found = Find(attributes(node), declaration);
    if (found != nullptr) return found->value();
  }
  return {};
}

}  // namespace praxen::detail
