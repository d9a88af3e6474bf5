// The measuring of jobs by Google Benchmark.
#include "bench/job.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <map>

namespace praxen::detail::bench {
namespace {

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

std::string NameOf(const Job& job) { return job.task + ", " + job.means; }

void Run(benchmark::State& state, const Job& job) {
  job.prepare();
  double release = 0;
  for ([[maybe_unused]] auto round : state) {
    const auto start = Clock::now();
    Product product = job.run();
    state.SetIterationTime(SecondsSince(start));
    const auto end = Clock::now();
    product.reset();
    release += SecondsSince(end);
  }
  state.counters["release"] = release / static_cast<double>(state.iterations());
}

// Keeps the times of all rounds.
class Collector final : public benchmark::BenchmarkReporter {
 public:
  struct Times {
    std::vector<double> run, release;
  };

  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      Times& times = times_[run.run_name.function_name];
      times.run.push_back(run.real_accumulated_time / static_cast<double>(run.iterations));
      times.release.push_back(run.counters.at("release"));
    }
  }
  const std::map<std::string, Times>& times() const { return times_; }

 private:
  std::map<std::string, Times> times_;
};

MemoryUse MeasureMemory(const Job& job) {
  const MemoryCount count;
  const Product product = job.run();
  return count.use();
}

}  // namespace

double Median(std::vector<double> values) {
  if (values.empty()) return 0;
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::ranges::nth_element(values, middle);
  return *middle;
}

std::vector<Result> Measure(const std::vector<Job>& jobs, int rounds) {
  for (const Job& job : jobs) {
    benchmark::RegisterBenchmark(NameOf(job).c_str(), Run, job)
        ->UseManualTime()
        ->MinTime(0.02)
        ->Repetitions(rounds);
  }
  Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  benchmark::ClearRegisteredBenchmarks();
  std::vector<Result> results;
  for (const Job& job : jobs) {
    const auto times = collector.times().find(NameOf(job));
    if (times == collector.times().end()) continue;  // The filter left it out.
    results.push_back({job.task, job.means, job.amount, Median(times->second.run),
                       Median(times->second.release), MeasureMemory(job)});
  }
  return results;
}

}  // namespace praxen::detail::bench
