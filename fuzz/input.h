// FuzzInput, which makes values of the bytes of an input.
#ifndef PRAXEN_FUZZ_INPUT_H_
#define PRAXEN_FUZZ_INPUT_H_

#include <cstddef>
#include <cstdint>
#include <string>

#include "praxen/core/text.h"

namespace praxen::detail {

/// Takes values from the front of an input; zeros when it is used up.
class FuzzInput {
 public:
  FuzzInput(const uint8_t* data, size_t size) : data_(data), size_(size) {}

  bool empty() const { return size_ == 0; }
  const uint8_t* data() const { return data_; }
  size_t size() const { return size_; }

  uint8_t Byte() {
    if (size_ == 0) return 0;
    --size_;
    return *data_++;
  }
  /// The bytes of a number, lowest first.
  template <class Number>
  Number Bits() {
    uint64_t bits = 0;
    for (size_t i = 0; i < sizeof(Number); ++i) bits |= static_cast<uint64_t>(Byte()) << (8 * i);
    return static_cast<Number>(bits);
  }
  /// A number from 0 to `below` - 1; `below` is at most 65,536.
  size_t Below(size_t below) {
    if (below < 2) return 0;
    return (below <= 256 ? Byte() : Bits<uint16_t>()) % below;
  }
  /// True for about one input in `count`, and not for an input that is used up.
  bool OneIn(size_t count) { return Below(count) == count - 1; }
  template <class Value, size_t Size>
  const Value& OneOf(const Value (&values)[Size]) {
    return values[Below(Size)];
  }
  /// Up to `longest` characters.
  template <class Character>
  Text TextOf(size_t longest, Character character) {
    std::u16string text;
    for (size_t count = Below(longest + 1); count > 0; --count) text += character(*this);
    return text;
  }
  /// A short text of any UTF-16 units, mostly plain letters.
  Text AnyText() {
    return TextOf(15, [](FuzzInput& input) {
      return input.OneIn(4) ? input.Bits<char16_t>() : static_cast<char16_t>(input.Byte() % 128);
    });
  }

 private:
  const uint8_t* data_;
  size_t size_;
};

}  // namespace praxen::detail

#endif  // PRAXEN_FUZZ_INPUT_H_
