// What is compared with what, and the bounds.
#include "bench/goals.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

#include "tests/support/sound_documents.h"

namespace praxen::detail::bench {
namespace {

const Result* Find(const std::vector<Result>& results, std::string_view task,
                   std::string_view means) {
  const auto found = std::ranges::find_if(
      results, [&](const Result& result) { return result.task == task && result.means == means; });
  return found == results.end() ? nullptr : &*found;
}

// How often a peer's time has to contain ours, for the tasks whose names end so. Of those of one
// peer the first that fits a task counts.
struct Comparison {
  std::string_view task;
  std::string_view peer;
  double wanted;
};

constexpr Comparison kComparisons[] = {
    {"program, write", "c++/tree", 40},
    {"program, read", "c++/tree", 40},
    {"program, read", "libxml2 dom", 1},
    {"hardware, read", "libxml2 dom", 1},
    {"messages, read", "libxml2 dom", 1},
    {"constants, read", "libxml2 dom", 1},
    {"small, read", "pugixml", 1},
    {", read", "pugixml", 1.3},
    {", write", "pugixml", 3},
};

const Comparison* ComparisonOf(const Result& result) {
  const auto found = std::ranges::find_if(kComparisons, [&](const Comparison& comparison) {
    return result.means == comparison.peer && result.task.ends_with(comparison.task);
  });
  return found == std::ranges::end(kComparisons) ? nullptr : &*found;
}

constexpr double kMostForGivingUp = 1.2;
constexpr double kLeastByTwoThreads = 1.8;

double PerUnit(const Result& result) { return result.seconds / static_cast<double>(result.amount); }

std::string Millions(const Result& result) {
  return std::to_string((result.amount + 500'000) / 1'000'000);
}

}  // namespace

std::vector<Goal> DocumentGoals(const std::vector<Result>& documents) {
  std::vector<Goal> goals;
  for (const Result& peer : documents) {
    const Comparison* const comparison = ComparisonOf(peer);
    const Result* const ours = Find(documents, peer.task, kOurs);
    if (comparison == nullptr || ours == nullptr) continue;
    goals.push_back({peer.task + ": time of " + peer.means + " over ours",
                     peer.seconds / ours->seconds, Goal::Bound::AtLeast, comparison->wanted});
  }
  const Result* const one = Find(documents, kReadTwice, kOurs);
  const Result* const two = Find(documents, kReadTwice, kTwoThreads);
  if (one != nullptr && two != nullptr) {
    goals.push_back({"program, read: documents by two threads over those by one",
                     one->seconds / two->seconds, Goal::Bound::AtLeast, kLeastByTwoThreads});
  }
  const Result* const givenUp = Find(documents, kGivenUp, kOurs);
  const Result* const reference = Find(documents, kGivenUp, kReference);
  if (givenUp != nullptr && reference != nullptr) {
    goals.push_back({std::string(kGivenUp) + ": time over that of the reference alone",
                     givenUp->seconds / reference->seconds, Goal::Bound::AtMost, kMostForGivingUp});
  }
  return goals;
}

// The most that the time per character grows from the smallest document on.
std::vector<Goal> GrowthGoals(const std::vector<Result>& growth) {
  constexpr double kMostGrowth = 1.1;
  std::vector<Goal> goals;
  for (const std::string task : {"program write", "program read"}) {
    const Result* const first = Find(growth, task, kOurs);
    if (first == nullptr) continue;
    const Result* last = first;
    double most = 1;
    for (const Result& result : growth) {
      if (result.task != task) continue;
      last = &result;
      most = std::max(most, PerUnit(result) / PerUnit(*first));
    }
    goals.push_back({task + ": growth per character, " + Millions(*first) + " to " +
                         Millions(*last) + " million",
                     most, Goal::Bound::AtMost, kMostGrowth});
  }
  return goals;
}

std::vector<Goal> ShareGoals() {
  constexpr double kPercent = 100;
  const std::vector<SoundDocument> documents = SoundDocuments();
  const auto direct = std::ranges::count_if(documents, &IsReadDirectly);
  return {{"documents of the tests that are read directly, in per cent",
           kPercent * static_cast<double>(direct) / static_cast<double>(documents.size()),
           Goal::Bound::AtLeast, 95}};
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
