// One pointer for each thread, and word of a thread's end.
#ifndef PRAXEN_CORE_THREAD_SLOT_H_
#define PRAXEN_CORE_THREAD_SLOT_H_

#include "praxen/core/namespaces.h"

namespace praxen::detail {

/// The slot, of which there is one. Threads may live on when the library is unloaded, so that
/// nothing of it may be called at their end by then; this is why it is no `thread_local` object.
struct ThreadSlot {
  /// From now on `atEnd` is called for each pointer that is not null as its thread ends.
  static void Open(void (*atEnd)(void* pointer)) noexcept;
  /// Threads end unnoticed from now on. On Windows this calls `atEnd` for all of them.
  static void Close() noexcept;

  /// Null in a new thread.
  static void* Get() noexcept;
  /// False, and nothing set, when there is no memory for the slot.
  static bool Set(void* pointer) noexcept;
};

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_THREAD_SLOT_H_
