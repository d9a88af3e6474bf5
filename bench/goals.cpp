// What is compared with what, and the bounds.
#include "bench/goals.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace praxen::detail::bench {
namespace {

const Result* Find(const std::vector<Result>& results, std::string_view task,
                   std::string_view means) {
  const auto found = std::ranges::find_if(
      results, [&](const Result& result) { return result.task == task && result.means == means; });
  return found == results.end() ? nullptr : &*found;
}

// How a peer's time is compared with ours.
struct Comparison {
  const char* task;
  const char* peer;
  Goal::Bound bound;
  double wanted;
};

constexpr Comparison kComparisons[] = {
    {"program, write", "c++/tree", Goal::Bound::AtLeast, 40},
    {"program, write", "pugixml", Goal::Bound::AtLeast, 2},
    {"program, read", "c++/tree", Goal::Bound::AtLeast, 5},
    {"program, read", "libxml2 dom", Goal::Bound::AtLeast, 1},
    {"program, read", "xerces sax2", Goal::Bound::AtMost, 1.6},
    {"small, read", "xerces sax2", Goal::Bound::AtMost, 1.5},
};

constexpr double kLeastByTwoThreads = 1.8;

double PerUnit(const Result& result) { return result.seconds / static_cast<double>(result.amount); }

}  // namespace

std::vector<Goal> DocumentGoals(const std::vector<Result>& documents) {
  std::vector<Goal> goals;
  for (const Comparison& comparison : kComparisons) {
    const Result* const ours = Find(documents, comparison.task, kOurs);
    const Result* const peer = Find(documents, comparison.task, comparison.peer);
    if (ours == nullptr || peer == nullptr) continue;
    const std::string task = comparison.task;
    // Where a peer builds less than we do, our time is a multiple of its own.
    const bool isFaster = comparison.bound == Goal::Bound::AtLeast;
    goals.push_back({task + (isFaster ? ": time of " : ": time over that of ") + comparison.peer +
                         (isFaster ? " over ours" : ""),
                     isFaster ? peer->seconds / ours->seconds : ours->seconds / peer->seconds,
                     comparison.bound, comparison.wanted});
  }
  const Result* const one = Find(documents, kReadTwice, kOurs);
  const Result* const two = Find(documents, kReadTwice, kTwoThreads);
  if (one != nullptr && two != nullptr) {
    goals.push_back({"program, read: documents by two threads over those by one",
                     one->seconds / two->seconds, Goal::Bound::AtLeast, kLeastByTwoThreads});
  }
  return goals;
}

std::vector<Goal> GrowthGoals(const std::vector<Result>& growth) {
  constexpr double kMostGrowth = 1.15;
  std::vector<Goal> goals;
  for (size_t i = 1; i < growth.size(); ++i) {
    const std::string& task = growth[i].task;
    if (growth[i - 1].task != task || !task.starts_with("program ") || task.ends_with("build")) {
      continue;
    }
    goals.push_back({task + ": growth per character to " +
                         std::to_string((growth[i].amount + 500'000) / 1'000'000) + " million",
                     PerUnit(growth[i]) / PerUnit(growth[i - 1]), Goal::Bound::AtMost,
                     kMostGrowth});
  }
  return goals;
}

void PrintGoals(const std::vector<Goal>& goals) {
  std::printf("\n%-64s %10s %12s\n", "goal", "reached", "wanted");
  for (const Goal& goal : goals) {
    const bool isLeast = goal.bound == Goal::Bound::AtLeast;
    const bool isMet = isLeast ? goal.reached >= goal.wanted : goal.reached <= goal.wanted;
    std::printf("%-64s %10.2f %s %5.2f %s\n", goal.text.c_str(), goal.reached,
                isLeast ? "at least" : "at most ", goal.wanted, isMet ? "" : "missed");
  }
}

}  // namespace praxen::detail::bench
