// NameAllowance, the bound on the dotted names of project constants.
#ifndef PRAXEN_MODEL_APPLICATION_NAME_ALLOWANCE_H_
#define PRAXEN_MODEL_APPLICATION_NAME_ALLOWANCE_H_

#include <cstddef>
#include <string_view>

namespace praxen::detail {

/// How many characters the dotted names of a list may have together: so many, so many for each
/// constant and group, and so many for each character of the element's own name. Short names in
/// groups of long names would take any multiple of the document.
class NameAllowance {
 public:
  static constexpr size_t kCharacters = 1'000'000;
  static constexpr size_t kOfElement = 1'000;
  static constexpr size_t kPerCharacter = 10;

  /// Counts a constant or group by its own name.
  void CountElement(std::u16string_view name) noexcept {
    allowed_ += kOfElement + kPerCharacter * name.size();
  }
  /// Adds a dotted name of so many characters; false when that is more than is allowed.
  bool Allows(size_t size) noexcept {
    taken_ += size;
    return taken_ <= allowed_;
  }

 private:
  size_t taken_ = 0;
  size_t allowed_ = kCharacters;
};

}  // namespace praxen::detail

#endif  // PRAXEN_MODEL_APPLICATION_NAME_ALLOWANCE_H_
