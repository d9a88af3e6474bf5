// A run that shows whether memory stays flat.
#ifndef PRAXEN_BENCH_LONG_RUN_H_
#define PRAXEN_BENCH_LONG_RUN_H_

namespace praxen::detail::bench {

/// Reads and serializes a small document in turn, so many calls in all, and prints the memory of
/// the process on the way. False when memory or the number of objects grew after the first tenth.
bool RunLong(int calls);

}  // namespace praxen::detail::bench

#endif  // PRAXEN_BENCH_LONG_RUN_H_
