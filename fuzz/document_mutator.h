// The mutators of the fuzzers that are fed with documents in UTF-8.
#ifndef PRAXEN_FUZZ_DOCUMENT_MUTATOR_H_
#define PRAXEN_FUZZ_DOCUMENT_MUTATOR_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace praxen::detail {

inline std::string_view ViewOf(const uint8_t* data, size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// What libFuzzer asks of a custom mutator: the size of the changed input, at most `most`.
size_t MutateDocument(uint8_t* data, size_t size, size_t most, unsigned seed);
/// The same of a custom crossover; 0 where the two do not fit.
size_t CrossDocuments(std::string_view first, std::string_view second, uint8_t* out, size_t most,
                      unsigned seed);

}  // namespace praxen::detail

#endif  // PRAXEN_FUZZ_DOCUMENT_MUTATOR_H_
