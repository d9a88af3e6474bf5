// What the objects of the model take.
#ifndef PRAXEN_BENCH_MODEL_MEMORY_H_
#define PRAXEN_BENCH_MODEL_MEMORY_H_

#include <vector>

#include "bench/goals.h"

namespace praxen::detail::bench {

/// Prints bytes per variable, function block and channel, after building and after reading.
void PrintModelMemory();
/// The memory of a large program's reading against the bytes of its text.
std::vector<Goal> MemoryGoals();

}  // namespace praxen::detail::bench

#endif  // PRAXEN_BENCH_MODEL_MEMORY_H_
