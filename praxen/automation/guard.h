// The results that stand for exceptions.
#ifndef PRAXEN_AUTOMATION_GUARD_H_
#define PRAXEN_AUTOMATION_GUARD_H_

#include <new>

#include "praxen/automation/automation.h"
#include "praxen/automation/border.h"

namespace praxen::detail {

/// The result for an exception in flight of which no more is known.
inline HRESULT ResultInFlight() noexcept {
  try {
    throw;
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

/// Does the work and returns its result, or the one that stands for the exception it threw.
template <class Work>
HRESULT Guarded(Work work) noexcept {
  return AtBorder([&]() -> HRESULT { return work(); }, ResultInFlight);
}

}  // namespace praxen::detail

#endif  // PRAXEN_AUTOMATION_GUARD_H_
