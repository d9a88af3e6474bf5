// Takes the place of the allocator of the process; what it does not fail, the former one serves.
#include "tests/support/failing_allocator.h"

#include <cstdlib>
#include <limits>
#include <new>

#ifdef __has_feature
#if __has_feature(address_sanitizer)
#define PRAXEN_SANITIZED_MALLOC
#endif
#endif

// What the functions that fail are called by now. Where they cannot be replaced, the linker leads
// the program's own calls to those below.
#ifdef PRAXEN_SANITIZED_MALLOC
#define PRAXEN_FORMER(function) __interceptor_##function
#elif defined(__GLIBC__)
#define PRAXEN_FORMER(function) __libc_##function
#else
#define PRAXEN_WRAPPED_MALLOC
#define PRAXEN_FORMER(function) __real_##function
#endif

extern "C" {
void* PRAXEN_FORMER(malloc)(size_t size);
void* PRAXEN_FORMER(calloc)(size_t count, size_t size);
void* PRAXEN_FORMER(realloc)(void* memory, size_t size);
}

namespace {

constexpr size_t kNever = std::numeric_limits<size_t>::max();

constinit size_t requests_left = kNever;
constinit bool fails_from_then_on = false;
constinit bool has_failed = false;

// Several threads may count at once, which then is not exact.
constinit size_t request_count = 0;
constinit size_t requested_bytes = 0;

bool Fails() {
  if (requests_left == kNever) return false;
  if (has_failed) return fails_from_then_on;
  has_failed = --requests_left == 0;
  return has_failed;
}

void Count(size_t size) {
  ++request_count;
  requested_bytes += size;
}

void* Allocate(size_t size) noexcept {
  Count(size);
  return Fails() ? nullptr : PRAXEN_FORMER(malloc)(size == 0 ? 1 : size);
}

void* AllocateOrThrow(size_t size) {
  void* const memory = Allocate(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

extern "C" {

#ifdef PRAXEN_WRAPPED_MALLOC
// The runtime is among the callers, and cannot raise an exception without memory: only one fails.
void* __wrap_malloc(size_t size) {
  return !has_failed && Fails() ? nullptr : PRAXEN_FORMER(malloc)(size);
}
void* __wrap_realloc(void* memory, size_t size) {
  return !has_failed && Fails() ? nullptr : PRAXEN_FORMER(realloc)(memory, size);
}
#else

void* malloc(size_t size) noexcept { return Fails() ? nullptr : PRAXEN_FORMER(malloc)(size); }
void* calloc(size_t count, size_t size) noexcept {
  return Fails() ? nullptr : PRAXEN_FORMER(calloc)(count, size);
}
void* realloc(void* memory, size_t size) noexcept {
  return Fails() ? nullptr : PRAXEN_FORMER(realloc)(memory, size);
}
#endif

}  // extern "C"

void* operator new(size_t size) { return AllocateOrThrow(size); }
void* operator new[](size_t size) { return AllocateOrThrow(size); }
void* operator new(size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new[](size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { std::free(memory); }

namespace praxen::detail {

FailingAllocator::FailingAllocator(size_t request, Failing failing) {
  fails_from_then_on = failing == Failing::FromThenOn;
  has_failed = false;
  requests_left = request;
}

CountedRequests::CountedRequests() { request_count = requested_bytes = 0; }

size_t CountedRequests::requests() const { return request_count; }

size_t CountedRequests::bytes() const { return requested_bytes; }

FailingAllocator::~FailingAllocator() { requests_left = kNever; }

bool FailingAllocator::hasFailed() const { return has_failed; }

}  // namespace praxen::detail
