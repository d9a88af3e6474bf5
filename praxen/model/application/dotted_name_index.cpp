// The tree of the segments of dotted names.
#include "praxen/model/application/dotted_name_index.h"

#include <functional>
#include <vector>

#include "praxen/core/seeded_hash.h"
#include "praxen/core/text_functions.h"

namespace praxen::detail {

size_t NameSegmentHash::operator()(const NameSegment& segment) const noexcept {
  const size_t level = std::hash<const void*>()(segment.level);
  return SeededHash(segment.name) ^ (level * 0x9E3779B97F4A7C15u);
}

void DottedNameIndex::Add(const Text& name) {
  Node* node = &root_;
  ++node->names;
  for (std::u16string_view rest = name; !rest.empty(); rest = TextAfterFirstDot(rest)) {
    const auto [place, isNew] = nodes_.try_emplace({node, TextBeforeFirstDot(rest)});
    node = &place->second;
    if (isNew) node->source = name;
    ++node->names;
  }
  ++node->ends;
}

void DottedNameIndex::TakeAway(std::u16string_view name) {
  std::vector<Nodes::iterator> path;
  Node* node = &root_;
  --node->names;
  for (std::u16string_view rest = name; !rest.empty(); rest = TextAfterFirstDot(rest)) {
    path.push_back(nodes_.find({node, TextBeforeFirstDot(rest)}));
    node = &path.back()->second;
    --node->names;
  }
  --node->ends;
  for (; !path.empty() && path.back()->second.names == 0; path.pop_back()) {
    nodes_.erase(path.back());
  }
}

void DottedNameIndex::Remove(std::u16string_view name) noexcept {
  if (!valid_) return;
  try {
    TakeAway(name);
  } catch (...) {
    valid_ = false;
  }
}

void DottedNameIndex::Replace(const Text& from, const Text& to) noexcept {
  if (!valid_) return;
  try {
    TakeAway(from);
    Add(to);
  } catch (...) {
    valid_ = false;
  }
}

bool DottedNameIndex::ConflictsWith(std::u16string_view name) const {
  const Node* node = &root_;
  for (std::u16string_view rest = name; !rest.empty(); rest = TextAfterFirstDot(rest)) {
    if (node->ends > 0) return true;
    const auto found = nodes_.find({node, TextBeforeFirstDot(rest)});
    if (found == nodes_.end()) return false;
    node = &found->second;
  }
  return node->names > 0;
}

}  // namespace praxen::detail
