// DottedNameIndex, which tells whether a dotted name conflicts with the names of a list.
#ifndef PRAXEN_MODEL_APPLICATION_DOTTED_NAME_INDEX_H_
#define PRAXEN_MODEL_APPLICATION_DOTTED_NAME_INDEX_H_

#include <cstddef>
#include <string_view>
#include <unordered_map>

#include "praxen/core/text.h"

namespace praxen::detail {

/// The place of a segment of a dotted name in a tree of names: the level it stands on and its text.
struct NameSegment {
  const void* level;
  std::u16string_view name;

  friend bool operator==(const NameSegment&, const NameSegment&) = default;
};

struct NameSegmentHash {
  size_t operator()(const NameSegment& segment) const noexcept;
};

/// The dotted names of a list, each as often as it stands there, as a tree of their segments. Every
/// operation takes time in proportion to the length of the name, whatever the names. A dot at the
/// end of a name counts for nothing, and the empty name has no segment.
class DottedNameIndex {
 public:
  void Add(const Text& name);
  /// Takes away a name that was added.
  void Remove(std::u16string_view name) noexcept;
  /// Puts another name in the place of one that was added.
  void Replace(const Text& from, const Text& to) noexcept;
  /// False once memory was missing for keeping the index in step; it then tells nothing any more.
  bool valid() const noexcept { return valid_; }

  /// Whether a name of the index equals `name`, is a dotted prefix of it or has it as one.
  bool ConflictsWith(std::u16string_view name) const;

 private:
  struct Node {
    /// Keeps the characters of the node's segment.
    Text source;
    /// How many names lead to or through the node, and how many end at it.
    size_t names = 0, ends = 0;
  };
  using Nodes = std::unordered_map<NameSegment, Node, NameSegmentHash>;

  void TakeAway(std::u16string_view name);

  Node root_;
  Nodes nodes_;
  bool valid_ = true;
};

}  // namespace praxen::detail

#endif  // PRAXEN_MODEL_APPLICATION_DOTTED_NAME_INDEX_H_
