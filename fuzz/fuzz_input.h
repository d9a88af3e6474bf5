// What the fuzzers share: values taken from the input, and calls that may fail with an error of the
// library but in no other way.
#ifndef PRAXEN_FUZZ_FUZZ_INPUT_H_
#define PRAXEN_FUZZ_FUZZ_INPUT_H_

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include "praxen/core/error.h"
#include "praxen/core/text.h"

namespace praxen {

/// Takes values from the front of an input; zeros when it is used up.
class FuzzInput {
 public:
  FuzzInput(const uint8_t* data, size_t size) : data_(data), size_(size) {}

  bool empty() const { return size_ == 0; }
  uint8_t Byte() {
    if (size_ == 0) return 0;
    --size_;
    return *data_++;
  }
  /// A number from 0 to `below` - 1.
  size_t Below(size_t below) { return below == 0 ? 0 : (Byte() * 256u + Byte()) % below; }
  /// Up to 15 characters, mostly plain letters.
  Text ShortText() {
    std::u16string text;
    for (size_t count = Byte() % 16; count > 0; --count) {
      const uint8_t byte = Byte();
      text += byte < 200 ? static_cast<char16_t>(u' ' + byte % 95)
                         : static_cast<char16_t>(byte * 256 + Byte());
    }
    return text;
  }
  /// All that is left, as UTF-16.
  Text RestAsText() {
    std::u16string text(size_ / 2, u'\0');
    std::memcpy(text.data(), data_, text.size() * 2);
    size_ = 0;
    return text;
  }

 private:
  const uint8_t* data_;
  size_t size_;
};

/// Whether the operation ended without an error of the library.
template <class Operation>
bool Succeeds(Operation operation) {
  try {
    operation();
    return true;
  } catch (const Error&) {
    return false;
  }
}

}  // namespace praxen

#endif  // PRAXEN_FUZZ_FUZZ_INPUT_H_
