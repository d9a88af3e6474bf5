// The jobs that write and read documents.
#ifndef PRAXEN_BENCH_DOCUMENT_JOBS_H_
#define PRAXEN_BENCH_DOCUMENT_JOBS_H_

#include <vector>

#include "bench/job.h"

namespace praxen::detail::bench {

/// Writing and reading by us and by every peer.
std::vector<Result> MeasureDocuments(int rounds);
/// Ten times the work after each other, by us.
std::vector<Result> MeasureGrowth(int rounds);

}  // namespace praxen::detail::bench

#endif  // PRAXEN_BENCH_DOCUMENT_JOBS_H_
