// Many small calls in one process.
#include "bench/long_run.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <fstream>

#include "bench/documents.h"
#include "praxen/core/counters.h"

namespace praxen::detail::bench {
namespace {

// What the allocator and the system may keep without anything being lost.
constexpr double kMostGrowth = 1;

double ResidentMebibytes() {
  size_t total = 0;
  size_t resident = 0;
  std::ifstream("/proc/self/statm") >> total >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

struct State {
  double mebibytes = ResidentMebibytes();
  int32_t objects = ObjectCounter();
};

State Print(int calls) {
  const State state;
  std::printf("%9d calls: %8.2f MiB resident, %d objects\n", calls, state.mebibytes, state.objects);
  std::fflush(stdout);
  return state;
}

}  // namespace

bool RunLong(int calls) {
  const int pairs = calls / 2;
  const int step = std::max(pairs / 10, 1);
  Text text = BuildSmallDocuments(1).front();
  Print(0);
  State first, last;
  for (int pair = 1; pair <= pairs; ++pair) {
    text = ObjectFactory::DeserializeProgram(text)->Serialize();
    if (pair % step != 0) continue;
    last = Print(2 * pair);
    if (pair == step) first = last;
  }
  const bool isFlat =
      last.mebibytes - first.mebibytes <= kMostGrowth && last.objects == first.objects;
  std::puts(isFlat ? "memory stayed flat" : "memory grew");
  return isFlat;
}

}  // namespace praxen::detail::bench
