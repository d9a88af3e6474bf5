// An allocator that runs out of memory when a test asks it to.
#ifndef PRAXEN_TESTS_SUPPORT_FAILING_ALLOCATOR_H_
#define PRAXEN_TESTS_SUPPORT_FAILING_ALLOCATOR_H_

#include <cstddef>

namespace praxen::detail {

/// While it lives, requests for memory of the process fail: operator new raises std::bad_alloc, and
/// malloc, calloc and realloc return null pointers; on Windows only one of them does.
/// One lives at a time.
class FailingAllocator {
 public:
  enum class Failing { Once, FromThenOn };

  /// The request with that number, counted from 1, is the first to fail.
  FailingAllocator(size_t request, Failing failing);
  FailingAllocator(const FailingAllocator&) = delete;
  FailingAllocator& operator=(const FailingAllocator&) = delete;
  ~FailingAllocator();

  /// Whether a request has failed yet.
  bool hasFailed() const;
};

/// Counts what is requested of operator new from then on. One lives at a time.
class CountedRequests {
 public:
  CountedRequests();
  size_t requests() const;
  size_t bytes() const;
};

}  // namespace praxen::detail

#endif  // PRAXEN_TESTS_SUPPORT_FAILING_ALLOCATOR_H_
