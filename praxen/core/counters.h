// What the whole library counts.
#ifndef PRAXEN_CORE_COUNTERS_H_
#define PRAXEN_CORE_COUNTERS_H_

#include <cstdint>

namespace praxen::detail {

/// The number of live objects of the counted classes: 2 after start-up, the shared writer and the
/// shared factory.
int32_t ObjectCounter() noexcept;
/// Raises `Overflow`, and counts nothing, when the counter is at its largest value.
void CountObject();
void UncountObject() noexcept;

/// What keeps the library from being unloaded: objects of every class, and locks. The shared
/// objects are not among them.
void CountModuleObject(int32_t change) noexcept;
bool ModuleInUse() noexcept;

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_COUNTERS_H_
