// What the library does before and at its first use.
#ifndef PRAXEN_BENCH_START_H_
#define PRAXEN_BENCH_START_H_

#include <vector>

#include "bench/goals.h"

namespace praxen::detail::bench {

/// Prints the processor time and the allocations of starting the process, of the first small
/// document written and of the first read, which compiles the schema. To be called first.
void PrintStart();
/// The time of a program that writes one variable and reads it again, and that of one that does
/// nothing, which are started many times by turns.
std::vector<Goal> StartGoals();

}  // namespace praxen::detail::bench

#endif  // PRAXEN_BENCH_START_H_
