// Memory of many pages on Windows, where large pages take a privilege.
#include "praxen/core/large_memory.h"

namespace praxen::detail {

void RequestLargePages(void*, size_t) noexcept {}

}  // namespace praxen::detail
