// Memory of many pages on systems other than Windows.
#include <sys/mman.h>

#include <cerrno>
#include <cstdint>

#include "praxen/core/large_memory.h"

namespace praxen::detail {

#ifdef MADV_HUGEPAGE

void RequestLargePages(void* memory, size_t bytes) noexcept {
  constexpr uintptr_t kPage = uintptr_t{2} << 20;
  const auto begin = reinterpret_cast<uintptr_t>(memory);
  const uintptr_t first = (begin + kPage - 1) / kPage * kPage;
  const uintptr_t end = (begin + bytes) / kPage * kPage;
  if (first >= end) return;
  // Whether it is done only matters for the time.
  const int error = errno;
  madvise(reinterpret_cast<void*>(first), end - first, MADV_HUGEPAGE);
  errno = error;
}

#else

void RequestLargePages(void*, size_t) noexcept {}

#endif

}  // namespace praxen::detail
