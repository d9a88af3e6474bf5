// A variable of the thread for the value, which is quick, and a key for the thread's end.
#include <pthread.h>

#include "praxen/core/thread_slot.h"

namespace praxen::detail {

namespace {

constinit thread_local void* value = nullptr;
constinit pthread_key_t key = 0;
constinit bool hasKey = false;

}  // namespace

void ThreadSlot::Open(void (*atEnd)(void* pointer)) noexcept {
  hasKey = ::pthread_key_create(&key, atEnd) == 0;
}

void ThreadSlot::Close() noexcept {
  if (hasKey) ::pthread_key_delete(key);
  hasKey = false;
}

void* ThreadSlot::Get() noexcept { return value; }

bool ThreadSlot::Set(void* pointer) noexcept {
  if (hasKey && ::pthread_setspecific(key, pointer) != 0) return false;
  value = pointer;
  return true;
}

}  // namespace praxen::detail
