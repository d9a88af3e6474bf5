// Jobs that are measured, and how.
#ifndef PRAXEN_BENCH_JOB_H_
#define PRAXEN_BENCH_JOB_H_

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/memory.h"

namespace praxen::detail::bench {

/// What a job makes; it is released outside the measured time.
using Product = std::shared_ptr<void>;

struct Job {
  /// Jobs of the same task do the same with different means.
  std::string task;
  std::string means;
  /// The amount of work: characters of text, or operations.
  size_t amount = 0;
  std::function<Product()> run;
  /// Runs before each round, and outside the measured time.
  std::function<void()> prepare = [] {};
};

/// Medians of the rounds, in seconds, and what one more run allocated.
struct Result {
  std::string task;
  std::string means;
  size_t amount = 0;
  double seconds = 0;
  double releaseSeconds = 0;
  MemoryUse memory;
};

/// Our own means, which the others are compared to.
inline constexpr std::string_view kOurs = "praxen";
/// The same, without reading anything directly.
inline constexpr std::string_view kReference = "praxen reference";

/// The task of reading a document that the direct way gives up at its last element.
inline constexpr std::string_view kGivenUp = "program given up, read";

/// The task of reading a document twice, and to do so on two threads at once.
inline constexpr std::string_view kReadTwice = "program, read twice";
inline constexpr std::string_view kTwoThreads = "two threads";

/// The value in the middle; 0 of none.
double Median(std::vector<double> values);

/// Measures jobs in rounds that are taken in random turn.
std::vector<Result> Measure(const std::vector<Job>& jobs, int rounds);

/// Time, characters per second, allocations, memory, and the ratio of each time to ours.
void PrintComparison(const std::vector<Result>& results);
/// Operations per second of each task by each means.
void PrintRates(const std::vector<Result>& results);
/// How the time per unit of work changes from each result to the next of the same means.
void PrintGrowth(const std::vector<Result>& results);

}  // namespace praxen::detail::bench

#endif  // PRAXEN_BENCH_JOB_H_
