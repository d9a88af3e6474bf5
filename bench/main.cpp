// Runs the benchmarks and prints their tables.
#include <benchmark/benchmark.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/automation_jobs.h"
#include "bench/document_jobs.h"
#include "bench/goals.h"
#include "bench/long_run.h"
#include "bench/model_memory.h"
#include "bench/start.h"

namespace praxen::detail::bench {
namespace {

void RunAll(int rounds) {
  PrintStart();
  const std::vector<Result> documents = MeasureDocuments(rounds);
  PrintComparison(documents);
  const std::vector<Result> growth = MeasureGrowth(rounds);
  PrintGrowth(growth);
  PrintRates(MeasureAutomation(rounds));
  PrintModelMemory();
  std::vector<Goal> goals = DocumentGoals(documents);
  for (const std::vector<Goal>& others :
       {MemoryGoals(), GrowthGoals(growth), ShareGoals(), StartGoals()}) {
    goals.insert(goals.end(), others.begin(), others.end());
  }
  PrintGoals(goals);
}

// Rounds are taken in random turn unless an option of Google Benchmark says otherwise.
void InitializeBenchmark(std::vector<std::string> options) {
  options.insert(options.begin(), {"praxen_bench", "--benchmark_enable_random_interleaving=true"});
  std::vector<char*> arguments;
  for (std::string& option : options) arguments.push_back(option.data());
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (count > 1) throw std::invalid_argument("unknown option " + std::string(arguments[1]));
}

int Main(int argc, char** argv) {
  CLI::App app(
      "Measures the library, and others at the same work. Options of Google Benchmark, such as\n"
      "--benchmark_filter=REGEX, choose among the jobs.");
  int rounds = 7;
  app.add_option("--rounds", rounds, "How often each job is measured.")
      ->capture_default_str()
      ->check(CLI::PositiveNumber);
  int calls = 0;
  app.add_option("--long", calls, "Only makes so many small calls and watches the memory.")
      ->check(CLI::PositiveNumber);
  app.allow_extras();
  CLI11_PARSE(app, argc, argv);
  if (calls > 0) return RunLong(calls) ? 0 : 1;
  InitializeBenchmark(app.remaining());
  RunAll(rounds);
  return 0;
}

}  // namespace
}  // namespace praxen::detail::bench

int main(int argc, char** argv) {
  try {
    return praxen::detail::bench::Main(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "praxen_bench: %s\n", error.what());
    return 1;
  }
}
