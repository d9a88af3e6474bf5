// ConstantName, the name of a project constant, which the lists that index it follow.
#ifndef PRAXEN_MODEL_APPLICATION_CONSTANT_NAME_H_
#define PRAXEN_MODEL_APPLICATION_CONSTANT_NAME_H_

#include <algorithm>
#include <type_traits>
#include <utility>
#include <vector>

#include "praxen/core/text.h"
#include "praxen/model/application/dotted_name_index.h"

namespace praxen::detail {

/// A text that keeps the indexes in which it stands in step. Copies are not followed.
class ConstantName {
 public:
  ConstantName() = default;
  ConstantName(const ConstantName& other) : text_(other.text_) {}
  ConstantName& operator=(const ConstantName& other) { return *this = other.text_; }
  ConstantName& operator=(const Text& text) {
    const Text before = std::exchange(text_, text);
    for (DottedNameIndex* const index : indexes_) index->Replace(before, text_);
    return *this;
  }

  operator const Text&() const noexcept { return text_; }  // NOLINT
  const Text& get() const noexcept { return text_; }
  friend bool operator==(const ConstantName& left, const std::type_identity_t<Text>& right) {
    return left.text_ == right;
  }

  /// Adds the name to the index, which has to leave before it is destroyed; a name may be in an
  /// index several times.
  void Join(DottedNameIndex& index) {
    indexes_.push_back(&index);
    index.Add(text_);
  }
  /// Leaves the index once, without taking the name from it; does nothing when it is not in it.
  void Leave(const DottedNameIndex& index) noexcept {
    const auto found = std::find(indexes_.begin(), indexes_.end(), &index);
    if (found == indexes_.end()) return;
    *found = indexes_.back();
    indexes_.pop_back();
  }

 private:
  Text text_;
  std::vector<DottedNameIndex*> indexes_;
};

}  // namespace praxen::detail

#endif  // PRAXEN_MODEL_APPLICATION_CONSTANT_NAME_H_
