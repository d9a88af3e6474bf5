// Growth, insertion and removal of the text buffer.
#include "praxen/core/string_builder.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "praxen/core/error.h"

namespace praxen::detail {

namespace {

constexpr int64_t kMostBytes = std::numeric_limits<int32_t>::max();
constexpr size_t kMostCharacters = static_cast<size_t>(kMostBytes) / sizeof(char16_t);

// A shorter text is copied.
constexpr size_t kShortestShared = 32768;
// A text that fills a smaller part of the storage is copied, too, so that a short document between
// long ones does not cost them the storage; several in a row do.
constexpr size_t kSmallestSharedPart = 8;

int32_t RoundUp(int64_t bytes, int32_t step) {
  const int64_t rounded = (bytes + step - 1) / step * step;
  if (rounded > kMostBytes) throw Overflow();
  return static_cast<int32_t>(rounded);
}

}  // namespace

CStringBuilder::CStringBuilder() { Capacity(growth_step_); }

void CStringBuilder::BufferBump(int32_t step) {
  if (step <= 0) return;
  if (step == std::numeric_limits<int32_t>::max()) throw Overflow();
  growth_step_ = step + step % 2;
}

void CStringBuilder::Capacity(int32_t bytes) {
  if (bytes <= 0) return;
  const int32_t capacity = RoundUp(bytes, growth_step_);
  const size_t characters = static_cast<size_t>(capacity) / sizeof(char16_t);
  const size_t kept = length();
  if (characters > storage_.capacity()) storage_.Reserve(characters, kept);
  capacity_ = capacity;
  CutTo(std::min(kept, characters));
}

void CStringBuilder::Chars(int32_t index, std::u16string_view character) {
  if (index < 0 || index >= Length()) {
    throw BufferRangeError(u"CStringBuilder.Chars"_text,
                           u"Tried assigning character past end of buffer."_text);
  }
  if (character.empty()) throw InvalidArgument();
  Own();
  storage_.data()[index] = character.front();
}

Text CStringBuilder::Chars(int32_t index) const {
  if (index < 0 || index >= Length()) {
    throw BufferRangeError(u"CStringBuilder.Chars"_text,
                           u"Tried reading character past end of buffer."_text);
  }
  return Text(view().substr(static_cast<size_t>(index), 1));
}

void CStringBuilder::Length(int32_t characters) {
  if (characters < 0) return;
  const size_t wanted = static_cast<size_t>(characters);
  if (wanted > length()) {
    const size_t added = wanted - length();
    std::fill_n(Extend(added), added, u'\0');
  }
  CutTo(wanted);
}

int32_t CStringBuilder::EnsureCapacity(int32_t bytes) {
  if (bytes > capacity_) Capacity(bytes);
  return capacity_;
}

CStringBuilder& CStringBuilder::Insert(int32_t index, std::u16string_view text) {
  if (index < 0 || index > Length()) {
    throw BufferRangeError(u"CStringBuilder.Insert"_text, u"Argument(s) out of range."_text);
  }
  if (text.empty()) return *this;
  if (text.size() > kMostCharacters - length()) throw Overflow();
  const Text kept(text);  // The text may be a part of the buffer that is about to move.
  const size_t tail = length() - static_cast<size_t>(index);
  Extend(kept.size());
  char16_t* const place = storage_.data() + index;
  std::memmove(place + kept.size(), place, tail * sizeof(char16_t));
  std::memcpy(place, kept.data(), kept.size() * sizeof(char16_t));
  return *this;
}

CStringBuilder& CStringBuilder::Remove(int32_t start, int32_t count) {
  if (start < 0 || count < 0 || int64_t{start} + count > Length()) {
    throw BufferRangeError(u"CStringBuilder.Remove"_text, u"Argument(s) out of range."_text);
  }
  Own();
  char16_t* const place = storage_.data() + start;
  const size_t removed = static_cast<size_t>(count);
  const size_t tail = length() - static_cast<size_t>(start) - removed;
  std::memmove(place, place + removed, tail * sizeof(char16_t));
  CutTo(length() - removed);
  return *this;
}

void CStringBuilder::Own() {
  if (storage_.IsShared()) Store(storage_.capacity());
}

void CStringBuilder::Store(size_t characters) {
  const size_t kept = length();
  storage_.Reserve(characters, kept);
  CutTo(kept);
}

void CStringBuilder::MakeRoom(size_t count) {
  if (count > kMostCharacters - length()) throw Overflow();
  const size_t wanted = length() + count;
  const int64_t bytes = static_cast<int64_t>(wanted * sizeof(char16_t));
  const int32_t capacity = bytes > capacity_ ? RoundUp(bytes, growth_step_) : capacity_;
  if (wanted > storage_.capacity()) {
    Store(std::max(wanted, std::min(2 * storage_.capacity(), kMostCharacters)));
  } else {
    Own();
  }
  capacity_ = capacity;
  room_end_ = storage_.data() +
              std::min(storage_.capacity(), static_cast<size_t>(capacity) / sizeof(char16_t));
}

Text CStringBuilder::ToString() {
  const bool isMuchShorter = length() < storage_.capacity() / kSmallestSharedPart;
  const bool isSecond = std::exchange(was_much_shorter_, isMuchShorter);
  if (length() < kShortestShared || (isMuchShorter && !isSecond)) return Text(view());
  // A text does not keep more storage than it fills.
  if (!storage_.IsShared() && length() < storage_.capacity() / 2) Store(length());
  room_end_ = end_;
  return storage_.Share(length());
}

}  // namespace praxen::detail
