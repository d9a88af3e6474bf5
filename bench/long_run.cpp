// A million small calls in one process.
#include "bench/long_run.h"

#include <unistd.h>

#include <cstdio>
#include <fstream>

#include "bench/documents.h"

namespace praxen::bench {
namespace {

double ResidentMebibytes() {
  size_t total = 0;
  size_t resident = 0;
  std::ifstream("/proc/self/statm") >> total >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

void Print(int calls) {
  std::printf("%9d calls: %8.2f MiB resident, %d objects\n", calls, ResidentMebibytes(),
              ObjectCounter());
  std::fflush(stdout);
}

}  // namespace

void RunLong() {
  constexpr int kPairs = 500'000;
  Text text = BuildSmallDocuments(1).front();
  Print(0);
  for (int pair = 1; pair <= kPairs; ++pair) {
    text = ObjectFactory::DeserializeProgram(text)->Serialize();
    if (pair % (kPairs / 10) == 0) Print(2 * pair);
  }
}

}  // namespace praxen::bench
