// The lock of the system that is the size of a pointer and needs no making.
#include "praxen/core/static_mutex.h"

#include <windows.h>

namespace praxen::detail {

namespace {

static_assert(sizeof(SRWLOCK) == sizeof(void*));

SRWLOCK* LockIn(void*& place) { return reinterpret_cast<SRWLOCK*>(&place); }

}  // namespace

void StaticMutex::lock() noexcept { AcquireSRWLockExclusive(LockIn(lock_)); }

bool StaticMutex::try_lock() noexcept { return TryAcquireSRWLockExclusive(LockIn(lock_)) != 0; }

void StaticMutex::unlock() noexcept { ReleaseSRWLockExclusive(LockIn(lock_)); }

}  // namespace praxen::detail
