// Memory of many pages.
#ifndef PRAXEN_CORE_LARGE_MEMORY_H_
#define PRAXEN_CORE_LARGE_MEMORY_H_

#include <cstddef>

namespace praxen::detail {

inline constexpr size_t kLargeMemory = size_t{4} << 20;

/// Asks the system for large pages; does nothing where there are none to be asked for.
void RequestLargePages(void* memory, size_t bytes) noexcept;

/// The same for a block that is about to be filled, when it has many pages: the first touch of each
/// small one would take longer than what is written to it.
inline void PreferLargePages(void* memory, size_t bytes) noexcept {
  if (bytes >= kLargeMemory) [[unlikely]]
    RequestLargePages(memory, bytes);
}

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_LARGE_MEMORY_H_
