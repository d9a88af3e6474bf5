// The allocator of the process, which counts while it is asked to and costs a branch otherwise.
#include "bench/memory.h"

#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <mutex>

extern "C" {
void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* memory, size_t size);
void __libc_free(void* memory);
}

namespace {

constinit bool counting = false;
constinit std::mutex mutex;
constinit praxen::detail::bench::MemoryUse counted;

void* Count(void* memory) {
  if (!counting || memory == nullptr) return memory;
  const std::lock_guard lock(mutex);
  ++counted.allocations;
  counted.held += static_cast<int64_t>(malloc_usable_size(memory));
  counted.peak = std::max(counted.peak, counted.held);
  return memory;
}

void Discount(void* memory) {
  if (counting && memory != nullptr) {
    const std::lock_guard lock(mutex);
    counted.held -= static_cast<int64_t>(malloc_usable_size(memory));
  }
}

}  // namespace

extern "C" {

void* malloc(size_t size) noexcept { return Count(__libc_malloc(size)); }
void* calloc(size_t count, size_t size) noexcept { return Count(__libc_calloc(count, size)); }
void* realloc(void* memory, size_t size) noexcept {
  Discount(memory);
  return Count(__libc_realloc(memory, size));
}
void free(void* memory) noexcept {
  Discount(memory);
  __libc_free(memory);
}

}  // extern "C"

namespace praxen::detail::bench {

MemoryCount::MemoryCount() {
  counted = {};
  counting = true;
}

MemoryCount::~MemoryCount() { counting = false; }

MemoryUse MemoryCount::use() const { return counted; }

}  // namespace praxen::detail::bench
