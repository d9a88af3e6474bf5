// A mutex for static objects.
#ifndef PRAXEN_CORE_STATIC_MUTEX_H_
#define PRAXEN_CORE_STATIC_MUTEX_H_

#include "praxen/core/namespaces.h"

#ifndef _WIN32
#include <mutex>
#endif

namespace praxen::detail {

/// A mutex that is there before the first static object is made and after the last is destroyed,
/// and that never needs memory. On Windows `std::mutex` promises neither.
class StaticMutex {
 public:
  constexpr StaticMutex() = default;
  StaticMutex(const StaticMutex&) = delete;
  StaticMutex& operator=(const StaticMutex&) = delete;

#ifdef _WIN32
  void lock() noexcept;
  bool try_lock() noexcept;
  void unlock() noexcept;

 private:
  void* lock_ = nullptr;
#else
  void lock() { mutex_.lock(); }
  bool try_lock() noexcept { return mutex_.try_lock(); }
  void unlock() noexcept { mutex_.unlock(); }

 private:
  std::mutex mutex_;
#endif
};

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_STATIC_MUTEX_H_
