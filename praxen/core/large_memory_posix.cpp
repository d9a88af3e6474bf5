// Memory of many pages on systems other than Windows.
#include <sys/mman.h>

#include <cerrno>
#include <cstdint>

#include "praxen/core/large_memory.h"

namespace praxen::detail {

#ifdef MADV_HUGEPAGE

void RequestLargePages(void* memory, size_t bytes) noexcept {
  constexpr size_t kPage = size_t{2} << 20;
  const size_t beforeFirst = (kPage - reinterpret_cast<uintptr_t>(memory) % kPage) % kPage;
  if (bytes < beforeFirst + kPage) return;
  // Whether it is done only matters for the time.
  const int error = errno;
  madvise(static_cast<std::byte*>(memory) + beforeFirst, (bytes - beforeFirst) / kPage * kPage,
          MADV_HUGEPAGE);
  errno = error;
}

#else

void RequestLargePages(void*, size_t) noexcept {}

#endif

}  // namespace praxen::detail
