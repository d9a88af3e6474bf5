// The coming and going of the threads' states.
#include "praxen/core/thread_state.h"

#include <new>
#include <utility>

#include "praxen/core/counters.h"
#include "praxen/core/thread_slot.h"

namespace praxen::detail {

namespace {

constinit StaticMutex mutex;
constinit ThreadState* firstState = nullptr;
constinit bool hasEnded = false;

}  // namespace

ThreadState& ThreadState::Current() {
  ThreadState* const state = Find();
  if (state == nullptr) throw std::bad_alloc();
  return *state;
}

ThreadState* ThreadState::Find() noexcept {
  void* const state = ThreadSlot::Get();
  return state != nullptr ? static_cast<ThreadState*>(state) : Make();
}

std::unique_lock<StaticMutex> ThreadState::Lock() { return std::unique_lock(mutex); }

const ThreadState* ThreadState::first() noexcept { return firstState; }

ThreadState* ThreadState::Make() noexcept {
  // The first state is made as the library is loaded, before the objects that are destroyed as it
  // is unloaded, so that the states outlive these.
  struct Life {
    Life() { ThreadSlot::Open(&End); }
    ~Life() { EndAll(); }
  };
  static const Life life;
  auto* const state = new (std::nothrow) ThreadState;
  if (state == nullptr) return nullptr;
  const auto lock = Lock();
  if (hasEnded || !ThreadSlot::Set(state)) {
    delete state;
    return nullptr;
  }
  state->next_ = std::exchange(firstState, state);
  if (state->next_ != nullptr) state->next_->previous_ = state;
  return state;
}

void ThreadState::End(void* state) noexcept {
  auto& ended = *static_cast<ThreadState*>(state);
  // One after the other: what is destroyed may still use the others, and ask for more.
  while (ended.kept_ != nullptr) {
    const std::unique_ptr<KeptByThread> first = std::move(ended.kept_);
    ended.kept_ = std::move(first->next_);
  }
  {
    const auto lock = Lock();
    ReturnObjects(ended.spareObjects);
    (ended.previous_ != nullptr ? ended.previous_->next_ : firstState) = ended.next_;
    if (ended.next_ != nullptr) ended.next_->previous_ = ended.previous_;
  }
  if (ThreadSlot::Get() == state) ThreadSlot::Set(nullptr);
  delete &ended;
}

void ThreadState::EndAll() noexcept {
  {
    // The system may have stopped the thread that held it, when the process ends.
    const std::unique_lock lock(mutex, std::try_to_lock);
    if (!lock) return;
    hasEnded = true;
  }
  ThreadSlot::Close();
  while (firstState != nullptr) End(firstState);
}

bool ThreadState::FindFirst(const void* kind) noexcept {
  for (auto* place = &kept_; *place != nullptr; place = &(*place)->next_) {
    if ((*place)->kind_ != kind) continue;
    if (place == &kept_) return true;
    std::unique_ptr<KeptByThread> found = std::move(*place);
    *place = std::move(found->next_);
    found->next_ = std::move(kept_);
    kept_ = std::move(found);
    return true;
  }
  return false;
}

void ThreadState::AddFirst(std::unique_ptr<KeptByThread> kept, const void* kind) noexcept {
  kept->kind_ = kind;
  kept->next_ = std::move(kept_);
  kept_ = std::move(kept);
}

}  // namespace praxen::detail
