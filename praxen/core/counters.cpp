// The counters of the library.
#include "praxen/core/counters.h"

#include <algorithm>
#include <atomic>
#include <limits>

#include "praxen/core/error.h"
#include "praxen/core/thread_state.h"

namespace praxen::detail {

namespace {

constexpr int32_t kMostObjects = std::numeric_limits<int32_t>::max();
constexpr int32_t kSharedObjects = 2;
constexpr int32_t kBatch = 256;

// The live objects and those that threads have leave for; changed under the lock.
constinit int32_t taken = 0;
constinit std::atomic<int32_t> module_objects = 0;

int32_t Take(int32_t wanted) {
  const int32_t count = std::min(wanted, kMostObjects - taken);
  if (count == 0) throw Overflow();
  taken += count;
  return count;
}

void TakeBatch(ThreadState& state) {
  const auto lock = ThreadState::Lock();
  state.spareObjects.store(Take(kBatch), std::memory_order_relaxed);
}

void ReturnBatch(ThreadState& state) noexcept {
  const auto lock = ThreadState::Lock();
  ReturnObjects(kBatch);
  state.spareObjects.store(state.spareObjects.load(std::memory_order_relaxed) - kBatch,
                           std::memory_order_relaxed);
}

// What a thread counts one by one that has no state.
void TakeOne() {
  const auto lock = ThreadState::Lock();
  Take(1);
}

void ReturnOne() noexcept {
  const auto lock = ThreadState::Lock();
  ReturnObjects(1);
}

}  // namespace

int32_t ObjectCounter() noexcept {
  const auto lock = ThreadState::Lock();
  int32_t count = taken;
  for (const auto* state = ThreadState::first(); state != nullptr; state = state->next()) {
    count -= state->spareObjects.load(std::memory_order_relaxed);
  }
  return count;
}

void CountObject() {
  ThreadState* const state = ThreadState::Find();
  if (state == nullptr) return TakeOne();
  if (state->spareObjects.load(std::memory_order_relaxed) == 0) TakeBatch(*state);
  state->spareObjects.store(state->spareObjects.load(std::memory_order_relaxed) - 1,
                            std::memory_order_relaxed);
}

void UncountObject() noexcept {
  ThreadState* const state = ThreadState::Find();
  if (state == nullptr) return ReturnOne();
  const int32_t spare = state->spareObjects.load(std::memory_order_relaxed) + 1;
  state->spareObjects.store(spare, std::memory_order_relaxed);
  if (spare == 2 * kBatch) ReturnBatch(*state);
}

void ReturnObjects(int32_t spare) noexcept { taken -= spare; }

void CountModuleObject(int32_t change) noexcept {
  module_objects.fetch_add(change, std::memory_order_relaxed);
}

bool ModuleInUse() noexcept { return ObjectCounter() > kSharedObjects || module_objects != 0; }

}  // namespace praxen::detail
