// The compact tree that a document is kept as.
#ifndef PRAXEN_XML_XML_TREE_H_
#define PRAXEN_XML_XML_TREE_H_

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "praxen/xml/xml_error.h"
#include "praxen/xml/xml_name.h"

namespace praxen::detail {

/// An attribute of an element.
struct XmlAttribute {
  XmlName name;
  const char16_t* data;
  uint32_t length;
  /// False when the text leaves the attribute out and the schema's default stands in.
  bool specified;

  std::u16string_view value() const { return {data, length}; }
};

/// Runs of values that stay where they are until all are given up at once.
template <class T>
class XmlArena {
 public:
  /// Room for `count` values without content.
  T* Allocate(size_t count) {
    if (count > room_) Grow(count);
    T* const run = next_;
    next_ += count;
    room_ -= count;
    return run;
  }

  /// Gives everything up but one block for the next use.
  void Clear() {
    if (!blocks_.empty()) blocks_.erase(blocks_.begin(), blocks_.end() - 1);
    if (!blocks_.empty() && blocks_.back().size > kLargestBlock) blocks_.clear();
    next_ = blocks_.empty() ? nullptr : blocks_.back().values.get();
    room_ = blocks_.empty() ? 0 : blocks_.back().size;
  }

 private:
  static constexpr size_t kSmallestBlock = 4096 / sizeof(T);
  static constexpr size_t kLargestBlock = (size_t{1} << 20) / sizeof(T);

  struct Block {
    std::unique_ptr<T[]> values;
    size_t size;
  };

  void Grow(size_t count) {
    const size_t step =
        blocks_.empty() ? kSmallestBlock : std::min(2 * blocks_.back().size, kLargestBlock);
    const size_t size = std::max(count, step);
    blocks_.push_back({std::make_unique_for_overwrite<T[]>(size), size});
    next_ = blocks_.back().values.get();
    room_ = size;
  }

  std::vector<Block> blocks_;
  T* next_ = nullptr;
  size_t room_ = 0;
};

/// What a node is.
enum class XmlNodeKind : uint8_t { Element, Text, Comment, Instruction };

/// A node; nodes are numbered in document order, so that the first child follows its parent.
struct XmlRecord {
  XmlName name;
  union {
    const char16_t* text;
    const XmlAttribute* attributes;
  };
  /// The next sibling's number, or `XmlTree::kNone`.
  uint32_t next;
  /// How many attributes or characters there are.
  uint32_t count : 29;
  uint32_t kind : 2;
  uint32_t hasChildren : 1;
};

class LossRecorder;

/// The nodes of one document. They are added in document order and then only read.
class XmlTree {
 public:
  static constexpr uint32_t kNone = UINT32_MAX;

  explicit XmlTree(std::u16string targetNamespace = {});

  /// Gives all nodes up. `source` is the text whose nodes are added next; it has to stay alive.
  void Clear(std::u16string_view source = {});

  /// Room for the attributes of the next element.
  XmlAttribute* NewAttributes(size_t count) { return attributes_.Allocate(count); }
  /// A copy of the characters.
  std::u16string_view Copy(std::u16string_view characters);
  /// Text that adjoins the text added before continues it. Blanks beside other nodes are dropped.
  void AddText(std::u16string_view characters) { text_.append(characters); }
  void AddElement(XmlName name, std::span<const XmlAttribute> attributes);
  void EndElement();
  void AddComment(std::u16string_view characters);
  void AddInstruction(XmlName target, std::u16string_view content);

  const std::u16string& targetNamespace() const { return targetNamespace_; }
  uint32_t size() const { return size_; }
  size_t depth() const { return open_.size(); }
  /// The element that is open while nodes are added.
  const XmlRecord& openElement() const { return record(open_.back().element); }

  const XmlRecord& record(uint32_t node) const {
    return blocks_[node >> kBlockBits][node & (kBlockSize - 1)];
  }
  std::span<const XmlAttribute> attributes(uint32_t node) const;
  std::u16string_view text(uint32_t node) const;
  uint32_t firstChild(uint32_t node) const {
    return record(node).hasChildren != 0 ? node + 1 : kNone;
  }
  /// The node as markup that can be read by itself: an element is its piece of the source with the
  /// namespace declarations added that it takes from outside. The default namespace is added only
  /// where it is not the schema's. Raises `Overflow` when the declarations of all calls exceed the
  /// limit together.
  std::u16string Markup(uint32_t node) const;
  /// The place of the node's first character.
  Place place(uint32_t node) const;
  /// Where the node begins in the source.
  size_t offset(uint32_t node) const { return extents()[node].begin; }
  /// Where the name of an attribute that the text gives begins; where the element begins for one
  /// that it does not give.
  size_t offset(uint32_t element, const XmlAttribute& attribute) const;
  std::u16string_view source() const { return source_; }

  /// Who is told what is read of the nodes; null while nobody is.
  LossRecorder* recorder() const { return recorder_; }
  void Record(LossRecorder* recorder) { recorder_ = recorder; }

 private:
  static constexpr uint32_t kBlockBits = 12;
  static constexpr uint32_t kBlockSize = 1U << kBlockBits;

  struct Open {
    uint32_t element;
    uint32_t lastChild;
  };
  /// Where a node stands in the source; `end` is set for elements only.
  struct Extent {
    uint32_t begin;
    uint32_t end;
    uint32_t parent;
  };

  XmlRecord& NewNode(XmlName name, XmlNodeKind kind, size_t count);
  XmlRecord& at(uint32_t node) { return blocks_[node >> kBlockBits][node & (kBlockSize - 1)]; }
  void EndText(bool isOnlyChild);

  const std::vector<Extent>& extents() const;
  std::u16string MissingDeclarations(uint32_t element) const;
  std::vector<std::u16string_view> UndeclaredPrefixes(uint32_t element) const;
  /// The namespace that an attribute such as "xmlns:p" declares around the element.
  std::u16string_view OuterNamespace(uint32_t element, std::u16string_view declaration) const;

  const std::u16string targetNamespace_;
  std::u16string_view source_;
  std::vector<std::unique_ptr<XmlRecord[]>> blocks_;
  uint32_t size_ = 0;
  XmlArena<XmlAttribute> attributes_;
  XmlArena<char16_t> characters_;
  std::vector<Open> open_;
  std::u16string text_;
  /// Found when first asked for, since most documents are read without.
  mutable std::vector<Extent> extents_;
  LossRecorder* recorder_ = nullptr;
  mutable size_t addedDeclarations_ = 0;
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_TREE_H_
