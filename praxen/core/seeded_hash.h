// A hash of texts that no one who chooses the texts can foresee.
#ifndef PRAXEN_CORE_SEEDED_HASH_H_
#define PRAXEN_CORE_SEEDED_HASH_H_

#include <cstddef>
#include <string_view>

namespace praxen::detail {

/// SipHash-1-3 of the text, with a key that is drawn once in each process.
size_t SeededHash(std::u16string_view text) noexcept;

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_SEEDED_HASH_H_
