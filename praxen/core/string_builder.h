// CStringBuilder, the growable buffer in which a document is built.
#ifndef PRAXEN_CORE_STRING_BUILDER_H_
#define PRAXEN_CORE_STRING_BUILDER_H_

#include <cstdint>
#include <cstring>
#include <string_view>

#include "praxen/core/text.h"
#include "praxen/core/text_buffer.h"

namespace praxen::detail {

/// A growable buffer of UTF-16 text.
///
/// `Capacity` follows the growth step, as clients of the class expect; the storage behind it grows
/// geometrically, so appending costs amortised constant time. Sizes are 32-bit signed bytes: one
/// beyond 2^31-1 raises `Overflow` and changes nothing.
class CStringBuilder {
 public:
  CStringBuilder();

  CStringBuilder(const CStringBuilder&) = delete;
  CStringBuilder& operator=(const CStringBuilder&) = delete;

  /// Sets the length to 0; the capacity stays.
  void Reset() noexcept { CutTo(0); }

  /// The growth step in bytes; an odd step is raised by one, one below 1 is ignored.
  void BufferBump(int32_t step);
  int32_t BufferBump() const noexcept { return growth_step_; }

  /// Rounds the request in bytes up to a multiple of the growth step and cuts the text to it; a
  /// request below 1 is ignored.
  void Capacity(int32_t bytes);
  int32_t Capacity() const noexcept { return capacity_; }

  /// The character at a 0-based index; raises object error 512 outside the text, and
  /// `InvalidArgument` for an empty `character`.
  void Chars(int32_t index, std::u16string_view character);
  Text Chars(int32_t index) const;

  /// The length in characters; what lies beyond the former length becomes NUL. A negative value is
  /// ignored.
  void Length(int32_t characters);
  int32_t Length() const noexcept { return static_cast<int32_t>(length()); }

  CStringBuilder& Append(std::u16string_view text) {
    if (text.empty()) return *this;
    char16_t* const end = Extend(text.size());
    std::memcpy(end, text.data(), text.size() * sizeof(char16_t));
    return *this;
  }
  /// Appends `count` characters, of any content, and returns the first.
  char16_t* Extend(size_t count) {
    char16_t* const end = Reserve(count);
    end_ = end + count;
    return end;
  }
  /// Makes room for `count` characters after the text and returns its start.
  char16_t* Reserve(size_t count) {
    if (count > static_cast<size_t>(room_end_ - end_)) [[unlikely]]
      MakeRoom(count);
    return end_;
  }
  /// Takes what was filled in up to `end`, within the room, into the text.
  void EndAt(char16_t* end) noexcept { end_ = end; }
  /// What may be filled in after the text before more room has to be reserved.
  struct Room {
    char16_t* start;
    char16_t* end;
  };
  Room room() const noexcept { return {end_, room_end_}; }

  /// Makes room for the given bytes and returns the capacity.
  int32_t EnsureCapacity(int32_t bytes);
  /// Inserts before the character at `index`; raises object error 512 outside 0 to the length.
  CStringBuilder& Insert(int32_t index, std::u16string_view text);
  /// Removes `count` characters; raises object error 512 when they are not all there.
  CStringBuilder& Remove(int32_t start, int32_t count);

  /// The text so far. A long one stands in the buffer's storage, which the buffer leaves to it when
  /// it changes while the text is held.
  Text ToString();
  std::u16string_view view() const noexcept { return {storage_.data(), length()}; }

 private:
  void MakeRoom(size_t count);
  void Own();
  /// Makes the storage one for so many characters, which is not shared.
  void Store(size_t characters);
  size_t length() const noexcept { return static_cast<size_t>(end_ - storage_.data()); }
  void CutTo(size_t length) noexcept { end_ = room_end_ = storage_.data() + length; }

  TextBuffer storage_;
  char16_t* end_ = storage_.data();
  /// How far the text may grow before the storage or the capacity has to; no further than its end
  /// while a text may stand in the storage.
  char16_t* room_end_ = end_;
  /// Whether the text handed out last filled little of the storage.
  bool was_much_shorter_ = false;
  int32_t capacity_ = 0;
  int32_t growth_step_ = 2048;
};

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_STRING_BUILDER_H_
