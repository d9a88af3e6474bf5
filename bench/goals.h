// The ratios that the library is to reach, and whether it does.
#ifndef PRAXEN_BENCH_GOALS_H_
#define PRAXEN_BENCH_GOALS_H_

#include <string>
#include <vector>

#include "bench/job.h"

namespace praxen::detail::bench {

/// A measured figure and its bound.
struct Goal {
  std::string text;
  double reached = 0;
  /// The least or the most that is wanted.
  enum class Bound : bool { AtLeast, AtMost } bound;
  double wanted = 0;
};

/// The goals for reading and writing against other libraries; those that were not measured are
/// left out.
std::vector<Goal> DocumentGoals(const std::vector<Result>& documents);
/// The goals for the time per character as documents grow.
std::vector<Goal> GrowthGoals(const std::vector<Result>& growth);
/// The goal for the documents that the tests expect: how many of them are read directly.
std::vector<Goal> ShareGoals();

void PrintGoals(const std::vector<Goal>& goals);

}  // namespace praxen::detail::bench

#endif  // PRAXEN_BENCH_GOALS_H_
