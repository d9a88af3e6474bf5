// What the fuzzers hold the library to, whatever they feed it with.
#ifndef PRAXEN_FUZZ_PROMISES_H_
#define PRAXEN_FUZZ_PROMISES_H_

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "praxen/core/error.h"
#include "praxen/describe/object.h"

namespace praxen::detail {

/// Ends the run as a finding and prints what was broken and by which text.
[[noreturn]] void Broken(std::string_view promise, std::u16string_view text = {});

/// The numbers of the errors that reading and writing may raise.
std::span<const uint32_t> ReadingErrors();
std::span<const uint32_t> WritingErrors();
/// Holds that an error is one of those.
void HoldError(uint32_t number, std::span<const uint32_t> documented);

/// Whether the operation ends without an error, which must be one of those documented.
template <class Operation>
bool Succeeds(std::span<const uint32_t> documented, Operation operation) {
  try {
    operation();
    return true;
  } catch (const Error& error) {
    HoldError(error.number(), documented);
    return false;
  }
}

/// Where the values of an object come from.
enum class Values : bool {
  /// From a client, who may set what XML or the format cannot carry.
  Arbitrary,
  /// From a document, or from a client who sets what a document can carry.
  Carried
};

/// Writes the object, reads it back and writes it again until nothing changes any more, with and
/// without line breaks. Carried values must be read, and change only as guaranteed.
void HoldRoundTrip(Object& object, Values values);

/// Holds that so much is asked of memory until it is destroyed as a text of so many characters may
/// take. Shapes that grow faster than the text exceed it as the inputs get longer.
class InProportion {
 public:
  explicit InProportion(size_t characters);
  InProportion(const InProportion&) = delete;
  InProportion& operator=(const InProportion&) = delete;
  ~InProportion();

 private:
  const size_t allowed_;
  const size_t before_;
};

/// Holds that what was made since it was created is gone when it is destroyed.
class NothingStays {
 public:
  NothingStays();
  NothingStays(const NothingStays&) = delete;
  NothingStays& operator=(const NothingStays&) = delete;
  ~NothingStays();

 private:
  const int32_t before_;
};

}  // namespace praxen::detail

#endif  // PRAXEN_FUZZ_PROMISES_H_
