// The counters of the library.
#include "praxen/core/counters.h"

#include <limits>

#include "praxen/core/error.h"

namespace praxen::detail {

namespace {

constinit int32_t object_counter = 0;
constinit int32_t module_objects = 0;

// The shared factory is an object of the module like any other, but keeps nothing loaded.
constexpr int32_t kSharedModuleObjects = 1;

}  // namespace

int32_t ObjectCounter() noexcept { return object_counter; }

void CountObject() {
  if (object_counter == std::numeric_limits<int32_t>::max()) throw Overflow();
  ++object_counter;
}

void UncountObject() noexcept { --object_counter; }

void CountModuleObject(int32_t change) noexcept { module_objects += change; }

bool ModuleInUse() noexcept { return module_objects > kSharedModuleObjects; }

}  // namespace praxen::detail
