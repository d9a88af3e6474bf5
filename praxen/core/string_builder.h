// CStringBuilder, the growable buffer in which a document is built.
#ifndef PRAXEN_CORE_STRING_BUILDER_H_
#define PRAXEN_CORE_STRING_BUILDER_H_

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>

#include "praxen/core/text.h"

namespace praxen {

/// A growable buffer of UTF-16 text.
///
/// `Capacity` follows the growth step, as clients of the class expect; the storage behind it grows
/// geometrically, so appending costs amortised constant time. Sizes are 32-bit signed bytes: one
/// beyond 2^31-1 raises `Overflow` and changes nothing.
class CStringBuilder {
 public:
  CStringBuilder();

  /// Sets the length to 0; the capacity stays.
  void Reset() noexcept { length_ = 0; }

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
  int32_t Length() const noexcept { return static_cast<int32_t>(length_); }

  CStringBuilder& Append(std::u16string_view text) {
    if (text.empty()) return *this;
    char16_t* const end = Extend(text.size());
    std::memcpy(end, text.data(), text.size() * sizeof(char16_t));
    return *this;
  }
  /// Appends room for `count` characters, of any content, and returns its start.
  char16_t* Extend(size_t count) {
    if (count > physical_ - length_) Grow(count);
    if (count > logical_ - length_) RaiseCapacity(length_ + count);
    char16_t* const end = characters_.get() + length_;
    length_ += count;
    return end;
  }

  /// Makes room for the given bytes and returns the capacity.
  int32_t EnsureCapacity(int32_t bytes);
  /// Inserts before the character at `index`; raises object error 512 outside 0 to the length.
  CStringBuilder& Insert(int32_t index, std::u16string_view text);
  /// Removes `count` characters; raises object error 512 when they are not all there.
  CStringBuilder& Remove(int32_t start, int32_t count);

  Text ToString() const { return Text(view()); }
  std::u16string_view view() const noexcept { return {characters_.get(), length_}; }

 private:
  struct Free {
    void operator()(char16_t* memory) const noexcept { std::free(memory); }
  };

  void Grow(size_t count);
  void RaiseCapacity(size_t characters);
  void Reserve(size_t characters);

  std::unique_ptr<char16_t[], Free> characters_;
  size_t length_ = 0;    // in characters, as the two below
  size_t physical_ = 0;  // what the storage holds
  size_t logical_ = 0;   // what `Capacity` stands for
  int32_t capacity_ = 0;
  int32_t growth_step_ = 2048;
};

}  // namespace praxen

#endif  // PRAXEN_CORE_STRING_BUILDER_H_
