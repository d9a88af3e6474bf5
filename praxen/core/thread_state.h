// What the library keeps for each thread that uses it.
#ifndef PRAXEN_CORE_THREAD_STATE_H_
#define PRAXEN_CORE_THREAD_STATE_H_

#include <atomic>
#include <concepts>
#include <cstdint>
#include <memory>
#include <mutex>

#include "praxen/core/static_mutex.h"

namespace praxen::detail {

class Region;

/// The base of what every thread has one of.
class KeptByThread {
 public:
  KeptByThread() = default;
  KeptByThread(const KeptByThread&) = delete;
  KeptByThread& operator=(const KeptByThread&) = delete;
  virtual ~KeptByThread() = default;

 private:
  friend class ThreadState;

  /// Stands for the class.
  const void* kind_ = nullptr;
  std::unique_ptr<KeptByThread> next_;
};

/// The state of one thread. It is made when the thread first needs it, and destroyed with all that
/// it keeps as the thread ends or, for the threads that are left, as the library is unloaded.
class ThreadState {
 public:
  /// Raises `std::bad_alloc`.
  static ThreadState& Current();
  /// Null when there is no memory for a state, and while the library is being unloaded.
  static ThreadState* Find() noexcept;

  /// While the lock is held, no state comes or goes, and `first` and `next` lead over all of them.
  static std::unique_lock<StaticMutex> Lock();
  static const ThreadState* first() noexcept;
  const ThreadState* next() const noexcept { return next_; }

  ThreadState(const ThreadState&) = delete;
  ThreadState& operator=(const ThreadState&) = delete;

  /// The thread's own `T`, made when it is first asked for; raises what making it raises.
  template <std::derived_from<KeptByThread> T>
  T& Keep() {
    if (!FindFirst(&kKind<T>)) AddFirst(std::make_unique<T>(), &kKind<T>);
    return static_cast<T&>(*kept_);
  }

  /// Objects that the thread may still create before it has to ask; see `CountObject`. Only the
  /// thread itself changes it.
  std::atomic<int32_t> spareObjects = 0;

  /// Where objects and texts are made while the thread reads a document; null at other times.
  Region* region = nullptr;

  /// Objects that wait to be destroyed; see `Object::Release`.
  struct Doomed {
    void* first = nullptr;
    bool isDestroying = false;
  } doomed;

 private:
  template <class T>
  static constexpr char kKind = 0;

  ThreadState() = default;
  ~ThreadState() = default;

  static ThreadState* Make() noexcept;
  static void End(void* state) noexcept;
  static void EndAll() noexcept;

  /// Whether one of the kind is kept. It is the first from then on, and found at once next time.
  bool FindFirst(const void* kind) noexcept;
  void AddFirst(std::unique_ptr<KeptByThread> kept, const void* kind) noexcept;

  std::unique_ptr<KeptByThread> kept_;
  ThreadState* previous_ = nullptr;
  ThreadState* next_ = nullptr;
};

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_THREAD_STATE_H_
