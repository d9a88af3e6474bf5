// The border that no exception crosses.

#ifndef PRAXEN_AUTOMATION_GUARD_H_
#define PRAXEN_AUTOMATION_GUARD_H_

#include <new>

#include "praxen/automation/automation.h"

namespace praxen::detail {

// Does the work and returns its result, or the one that stands for the exception it threw.
template <class Work>
HRESULT Guarded(Work work) noexcept {
  try {
    return work();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace praxen::detail

#endif  // PRAXEN_AUTOMATION_GUARD_H_
