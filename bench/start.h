// What the library does before and at its first use.
#ifndef PRAXEN_BENCH_START_H_
#define PRAXEN_BENCH_START_H_

namespace praxen::detail::bench {

/// Prints the processor time and the allocations of starting the process, of the first small
/// document written and of the first read, which compiles the schema. To be called first.
void PrintStart();

}  // namespace praxen::detail::bench

#endif  // PRAXEN_BENCH_START_H_
