// TextBuffer, storage that grows and can be handed over as a text.
#ifndef PRAXEN_CORE_TEXT_BUFFER_H_
#define PRAXEN_CORE_TEXT_BUFFER_H_

#include <cstddef>

#include "praxen/core/text.h"

namespace praxen::detail {

/// Room for characters that are still being written, and that become a text without being copied.
class TextBuffer {
 public:
  /// The room, of any content; written to only while `IsShared` is false.
  char16_t* data() const noexcept { return const_cast<char16_t*>(block_.characters_); }
  /// In characters.
  size_t capacity() const noexcept { return capacity_; }

  /// Makes the room one for so many characters, at most 2^31-1, of which the first `kept` stay; it
  /// is not shared afterwards. Raises `std::bad_alloc`, and changes nothing, without the memory.
  void Reserve(size_t characters, size_t kept);

  /// The first `length` characters, at most the capacity, as a text that stands in the room.
  Text Share(size_t length);
  /// Whether a text that was handed out still stands in the room.
  bool IsShared() const noexcept { return block_.references().load(std::memory_order_acquire) > 1; }

 private:
  Text block_;
  size_t capacity_ = 0;
};

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_TEXT_BUFFER_H_
