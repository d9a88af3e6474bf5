// Runs the benchmarks and prints their tables.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <exception>
#include <vector>

#include "bench/automation_jobs.h"
#include "bench/document_jobs.h"
#include "bench/long_run.h"
#include "bench/model_memory.h"

namespace {

void RunAll() {
  using namespace praxen::bench;
  PrintComparison(MeasureDocuments());
  PrintGrowth(MeasureGrowth());
  PrintRates(MeasureAutomation());
  PrintModelMemory();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (argc == 2 && std::strcmp(argv[1], "--long") == 0) {
      praxen::bench::RunLong();
      return 0;
    }
    // Rounds are taken in random turn unless the command line says otherwise.
    static char interleaving[] = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, interleaving);
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;
    RunAll();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "praxen_bench: %s\n", error.what());
    return 1;
  }
}
