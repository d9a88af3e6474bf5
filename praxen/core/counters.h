// What the whole library counts, whichever thread it happens on.
#ifndef PRAXEN_CORE_COUNTERS_H_
#define PRAXEN_CORE_COUNTERS_H_

#include <cstdint>

#include "praxen/core/namespaces.h"

namespace praxen::detail {

/// The number of live objects of the counted classes: 2 after start-up, the shared writer and the
/// shared factory. While other threads create or release objects, a number that was or will be.
int32_t ObjectCounter() noexcept;
/// Raises `Overflow`, and counts nothing, when the counter is at its largest value.
///
/// A thread takes leave for many objects at once, and returns it in the same way, so that counting
/// makes no thread wait for another. Beside the largest value, it is enough for `Overflow` that
/// other threads hold the rest.
void CountObject();
void UncountObject() noexcept;
/// Returns what a thread has left that ends; `ThreadState::Lock` is held.
void ReturnObjects(int32_t spare) noexcept;

/// What keeps the library from being unloaded besides the counted objects.
void CountModuleObject(int32_t change) noexcept;
/// Whether there are any of them, or counted objects other than the two shared ones.
bool ModuleInUse() noexcept;

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_COUNTERS_H_
