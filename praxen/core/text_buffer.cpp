// Growth and sharing of text storage.
#include "praxen/core/text_buffer.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <string_view>
#include <utility>

#include "praxen/core/large_memory.h"

namespace praxen::detail {

void TextBuffer::Reserve(size_t characters, size_t kept) {
  if (capacity_ == 0 || IsShared()) {
    Text fresh;
    fresh.characters_ = Text::Allocate(characters);
    std::memcpy(const_cast<char16_t*>(fresh.characters_), data(), kept * sizeof(char16_t));
    block_ = std::move(fresh);
  } else {
    void* const grown = std::realloc(&block_.block(), Text::BlockSize(characters));
    if (grown == nullptr) throw std::bad_alloc();
    if (characters > capacity_) PreferLargePages(grown, Text::BlockSize(characters));
    block_.characters_ = reinterpret_cast<char16_t*>(static_cast<TextBlock*>(grown) + 1);
  }
  capacity_ = characters;
}

Text TextBuffer::Share(size_t length) {
  // What has been handed out must not change.
  if (IsShared())
    return length == block_.size() ? block_ : Text(std::u16string_view(data(), length));
  data()[length] = 0;
  block_.block().length = static_cast<uint32_t>(length);
  return block_;
}

}  // namespace praxen::detail
