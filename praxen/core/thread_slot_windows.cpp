// A slot that tells of the end of threads, and of its own.
#include <windows.h>

#include <atomic>

#include "praxen/core/thread_slot.h"

namespace praxen::detail {

namespace {

constinit std::atomic<DWORD> slot = FLS_OUT_OF_INDEXES;
using End = void (*)(void* pointer);
constinit End callAtEnd = nullptr;

void WINAPI AtEnd(void* pointer) {
  if (pointer != nullptr) callAtEnd(pointer);
}

}  // namespace

void ThreadSlot::Open(void (*atEnd)(void* pointer)) noexcept {
  callAtEnd = atEnd;
  slot = FlsAlloc(&AtEnd);
}

void ThreadSlot::Close() noexcept {
  const DWORD closed = slot.exchange(FLS_OUT_OF_INDEXES);
  if (closed != FLS_OUT_OF_INDEXES) FlsFree(closed);
}

void* ThreadSlot::Get() noexcept {
  const DWORD index = slot.load(std::memory_order_acquire);
  return index == FLS_OUT_OF_INDEXES ? nullptr : FlsGetValue(index);
}

bool ThreadSlot::Set(void* pointer) noexcept {
  const DWORD index = slot.load(std::memory_order_acquire);
  return index != FLS_OUT_OF_INDEXES && FlsSetValue(index, pointer) != FALSE;
}

}  // namespace praxen::detail
