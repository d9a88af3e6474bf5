// What the objects of the model take.
#ifndef PRAXEN_BENCH_MODEL_MEMORY_H_
#define PRAXEN_BENCH_MODEL_MEMORY_H_

namespace praxen::bench {

/// Prints bytes per variable, function block and channel, after building and after reading, and the
/// memory of a large program's reading against the bytes of its text.
void PrintModelMemory();

}  // namespace praxen::bench

#endif  // PRAXEN_BENCH_MODEL_MEMORY_H_
