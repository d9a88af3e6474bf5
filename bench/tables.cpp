// The printing of results.
#include <cstdio>

#include "bench/job.h"

namespace praxen::detail::bench {
namespace {

constexpr double kMillion = 1e6;

const Result* OursFor(const std::vector<Result>& results, const std::string& task) {
  for (const Result& result : results) {
    if (result.task == task && result.means == kOurs) return &result;
  }
  return nullptr;
}

double MillionPerSecond(const Result& result) {
  return static_cast<double>(result.amount) / result.seconds / kMillion;
}

double Mebibytes(int64_t bytes) { return static_cast<double>(bytes) / (1 << 20); }

}  // namespace

void PrintComparison(const std::vector<Result>& results) {
  std::printf("\n%-26s %-16s %10s %9s %12s %9s %9s %10s %8s\n", "task", "means", "ms", "Mchar/s",
              "allocations", "peak MiB", "held MiB", "release ms", "ratio");
  for (const Result& result : results) {
    const Result* const ours = OursFor(results, result.task);
    std::printf("%-26s %-16s %10.2f %9.1f %12lld %9.1f %9.1f %10.2f %8.2f\n", result.task.c_str(),
                result.means.c_str(), result.seconds * 1000, MillionPerSecond(result),
                static_cast<long long>(result.memory.allocations), Mebibytes(result.memory.peak),
                Mebibytes(result.memory.held), result.releaseSeconds * 1000,
                ours == nullptr ? 0 : result.seconds / ours->seconds);
  }
}

void PrintRates(const std::vector<Result>& results) {
  std::printf("\n%-26s %-22s %14s\n", "operation", "means", "million per s");
  for (const Result& result : results) {
    std::printf("%-26s %-22s %14.2f\n", result.task.c_str(), result.means.c_str(),
                MillionPerSecond(result));
  }
}

void PrintGrowth(const std::vector<Result>& results) {
  std::printf("\n%-26s %12s %12s %12s %14s\n", "task", "amount", "ms", "ns per unit",
              "against before");
  for (size_t i = 0; i < results.size(); ++i) {
    const auto perUnit = [](const Result& result) {
      return result.seconds * 1e9 / static_cast<double>(result.amount);
    };
    const bool follows = i > 0 && results[i - 1].task == results[i].task;
    std::printf("%-26s %12zu %12.2f %12.2f %14.2f\n", results[i].task.c_str(), results[i].amount,
                results[i].seconds * 1000, perUnit(results[i]),
                follows ? perUnit(results[i]) / perUnit(results[i - 1]) : 1.0);
  }
}

}  // namespace praxen::detail::bench
