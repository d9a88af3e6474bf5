// The jobs that use objects in C++ and through automation.
#ifndef PRAXEN_BENCH_AUTOMATION_JOBS_H_
#define PRAXEN_BENCH_AUTOMATION_JOBS_H_

#include <vector>

#include "bench/job.h"

namespace praxen::detail::bench {

/// Property get and put, additions and enumeration: directly in C++, through the interface table,
/// by cached identifier and by name.
std::vector<Result> MeasureAutomation(int rounds);

}  // namespace praxen::detail::bench

#endif  // PRAXEN_BENCH_AUTOMATION_JOBS_H_
