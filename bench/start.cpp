// The first calls of a process.
#include "bench/start.h"

#include <cstdio>
#include <ctime>

#include "bench/documents.h"
#include "bench/memory.h"

namespace praxen::detail::bench {
namespace {

double ProcessorMilliseconds() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

template <class Step>
void PrintStep(const char* name, Step step) {
  const double before = ProcessorMilliseconds();
  const MemoryCount count;
  step();
  std::printf("%-34s %14.2f %14lld\n", name, ProcessorMilliseconds() - before,
              static_cast<long long>(count.use().allocations));
}

}  // namespace

void PrintStart() {
  std::printf("%-34s %14s %14s\n", "start", "processor ms", "allocations");
  std::printf("%-34s %14.2f\n", "loading the process", ProcessorMilliseconds());
  Text text;
  PrintStep("first document built and written", [&] { text = BuildSmallDocuments(1).front(); });
  PrintStep("first document read", [&] { ObjectFactory::DeserializeProgram(text); });
  PrintStep("second document read", [&] { ObjectFactory::DeserializeProgram(text); });
}

}  // namespace praxen::detail::bench
