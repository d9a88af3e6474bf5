// A run that shows whether memory stays flat.
#ifndef PRAXEN_BENCH_LONG_RUN_H_
#define PRAXEN_BENCH_LONG_RUN_H_

namespace praxen::bench {

/// Serializes and reads a small document half a million times each, and prints the memory of the
/// process at the start, in the middle and at the end.
void RunLong();

}  // namespace praxen::bench

#endif  // PRAXEN_BENCH_LONG_RUN_H_
