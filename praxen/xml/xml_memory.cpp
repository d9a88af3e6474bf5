// The reserve is given out piece after piece, and begins anew when all pieces are back.
#include "praxen/xml/xml_memory.h"

#include <cstring>
#include <exception>
#include <functional>
#include <new>
#include <xercesc/internal/XMLReader.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>

namespace praxen::detail {

namespace {

// Whether a request is for a reader with its buffers, before which Xerces notes who gave the
// memory.
bool IsReader(size_t size) {
  constexpr size_t kReader = sizeof(xercesc::XMLReader);
  return size >= kReader && size <= kReader + sizeof(std::max_align_t);
}

}  // namespace

XmlMemory& XmlMemory::Instance() {
  // In no heap, so that nothing stays behind when the library is unloaded.
  alignas(XmlMemory) static std::byte place[sizeof(XmlMemory)];
  static XmlMemory& memory = *new (place) XmlMemory;
  return memory;
}

void* XmlMemory::allocate(XMLSize_t size) {
  const bool isReader = IsReader(size);
  void* memory = isReader ? spareReader_.exchange(nullptr) : nullptr;
  if (memory == nullptr) memory = ::operator new(size, std::nothrow);
  if (memory == nullptr) memory = FromReserve(size);
  if (memory == nullptr) throw xercesc::OutOfMemoryException();
  if (isReader) return reader_ = memory;
  // Xerces destroys what an array of pointers holds also when it could not fill it to the end.
  return std::memset(memory, 0, size);
}

void XmlMemory::deallocate(void* memory) {
  if (!IsReserve(memory)) {
    void* reader = memory;
    const bool isReader = memory != nullptr && reader_.compare_exchange_strong(reader, nullptr);
    return ::operator delete(isReader ? spareReader_.exchange(memory) : memory);
  }
  const std::lock_guard lock(mutex_);
  if (--pieces_ == 0) used_ = 0;
}

void XmlMemory::GiveUpSpareReader() noexcept { ::operator delete(spareReader_.exchange(nullptr)); }

void XmlMemory::CountReleases(int change) {
  const std::lock_guard lock(mutex_);
  releases_ += change;
}

// Null where an exception may be raised instead, and when nothing is left.
void* XmlMemory::FromReserve(size_t size) {
  constexpr size_t kStep = alignof(std::max_align_t);
  const std::lock_guard lock(mutex_);
  const bool mustSucceed = releases_ != 0 || std::uncaught_exceptions() != 0;
  if (!mustSucceed && size > kSmallRequest) return nullptr;
  const size_t most = mustSucceed ? kReserve : kReserve - kLastReserve;
  if (used_ > most || size > most - used_) return nullptr;
  shortage_ = true;
  void* const piece = reserve_ + used_;
  used_ += (size + kStep - 1) / kStep * kStep;
  ++pieces_;
  return piece;
}

bool XmlMemory::IsReserve(const void* memory) const {
  const std::less<const void*> before;
  return !before(memory, reserve_) && before(memory, reserve_ + kReserve);
}

}  // namespace praxen::detail
