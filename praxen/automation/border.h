// The border that no exception crosses, in whatever form a failure is told beyond it.
#ifndef PRAXEN_AUTOMATION_BORDER_H_
#define PRAXEN_AUTOMATION_BORDER_H_

#include "praxen/core/language.h"

namespace praxen::detail {

/// Does the work and returns its result; for an exception, what `failed` returns, which is called
/// while the exception is in flight.
template <class Work, class Failed>
auto AtBorder(Work work, Failed failed) noexcept -> decltype(work()) {
  try {
    return work();
  } catch (...) {
    return failed();
  }
}

}  // namespace praxen::detail

#endif  // PRAXEN_AUTOMATION_BORDER_H_
