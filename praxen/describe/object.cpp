// Counting and destruction of objects.
#include "praxen/describe/object.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <mutex>
#include <new>
#include <utility>

#include "praxen/core/counters.h"
#include "praxen/core/error.h"
#include "praxen/core/region.h"
#include "praxen/core/thread_state.h"
#include "praxen/describe/description.h"

namespace praxen {

using namespace detail;

namespace {

// Leaves an object aligned as memory of its own is.
constexpr size_t kHead = std::max(alignof(std::max_align_t), sizeof(void*));

// Destroying an object releases what it contains. What dies from that is queued, not destroyed at
// once, so a chain of any length needs no more stack than one object. The queue is linked through
// the table pointers, which a dying object no longer needs.
void Destroy(Object& object, ThreadState::Doomed& doomed) noexcept {
  object.table = static_cast<const void* const*>(doomed.first);
  doomed.first = &object;
  if (std::exchange(doomed.isDestroying, true)) return;
  while (doomed.first != nullptr) {
    auto* const next = static_cast<Object*>(doomed.first);
    doomed.first = const_cast<const void**>(next->table);
    delete next;
  }
  doomed.isDestroying = false;
}

}  // namespace

// Before each object stands the piece of a region that it lies in, or null. A client's own class
// may need more alignment than those of the library, which alone lie in regions.
void* Object::operator new(size_t size) {
  static_assert(alignof(Object) <= alignof(void*));
  ThreadState* const state = ThreadState::Find();
  if (state != nullptr && state->region != nullptr && size <= Region::kLargest) {
    return state->region->Allocate(size);
  }
  auto* const memory = static_cast<std::byte*>(std::malloc(kHead + size));
  if (memory == nullptr) throw std::bad_alloc();
  auto* const object = reinterpret_cast<void**>(memory + kHead);
  object[-1] = nullptr;
  return object;
}

void Object::operator delete(void* object) noexcept {
  static_cast<void**>(object)[-1] != nullptr ? Region::Free(object)
                                             : std::free(static_cast<std::byte*>(object) - kHead);
}

Object::Object(const ClassDescription& description, Counting counting) : counting_(counting) {
  table = description.interfaceTable();
  counting == Counting::Yes ? CountObject() : CountModuleObject(1);
}

Object::~Object() { counting_ == Counting::Yes ? UncountObject() : CountModuleObject(-1); }

void Object::Destroy() noexcept {
  if (ThreadState* const state = ThreadState::Find()) return praxen::Destroy(*this, state->doomed);
  // Threads that memory is too short for take turns.
  static std::recursive_mutex mutex;
  static constinit ThreadState::Doomed doomed;
  const std::lock_guard lock(mutex);
  praxen::Destroy(*this, doomed);
}

}  // namespace praxen

namespace praxen::detail {

void ThrowMissingObject() { throw MissingObject(); }

void ThrowTypeMismatch() { throw TypeMismatch(); }

}  // namespace praxen::detail
