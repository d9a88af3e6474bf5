// What a job allocates.
#ifndef PRAXEN_BENCH_MEMORY_H_
#define PRAXEN_BENCH_MEMORY_H_

#include <cstdint>

namespace praxen::detail::bench {

/// Memory taken since the counting began, as the allocator hands it out.
struct MemoryUse {
  int64_t allocations = 0;
  /// In bytes.
  int64_t held = 0;
  int64_t peak = 0;
};

/// Counts the allocations of the whole process between construction and `use`.
class MemoryCount {
 public:
  MemoryCount();
  ~MemoryCount();
  MemoryCount(const MemoryCount&) = delete;
  MemoryCount& operator=(const MemoryCount&) = delete;

  MemoryUse use() const;
};

}  // namespace praxen::detail::bench

#endif  // PRAXEN_BENCH_MEMORY_H_
