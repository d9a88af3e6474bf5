// Texts that are shared among the objects read from one document.
#ifndef PRAXEN_DESCRIBE_SHARED_TEXTS_H_
#define PRAXEN_DESCRIBE_SHARED_TEXTS_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "praxen/core/text.h"

namespace praxen::describe {

/// The short texts met last, so that the names of types and tasks, which repeat all over a
/// document, are stored once. Only a text that equals an earlier one is shared; which ones are
/// remembered changes nothing but memory.
class SharedTexts {
 public:
  Text Share(std::u16string_view characters);
  void Clear() noexcept;

 private:
  static constexpr size_t kLongest = 32;
  static constexpr size_t kPlaces = 256;

  struct Place {
    uint64_t hash = 0;
    Text text;
    /// Of the text that came to the place last.
    uint64_t lastHash = 0;
  };

  std::array<Place, kPlaces> places_;
  /// The places that are not empty, in the order of their use.
  std::array<uint8_t, kPlaces> used_;
  size_t usedCount_ = 0;
};

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_SHARED_TEXTS_H_
