// The reserve is given out piece after piece, and begins anew when all pieces are back.
#include "praxen/xml/xml_memory.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <functional>
#include <new>
#include <utility>
#include <xercesc/internal/XMLReader.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>

namespace praxen::detail {

namespace {

// The least that a request takes from a budget.
constexpr size_t kSmallestCount = 64;

// How far small requests may overdraw a budget: one may be of a destructor, which cannot fail, so
// that it is left to a larger one to do so.
constexpr int64_t kOverdraft = 4'000'000;

// Whether a request is for a reader with its buffers, before which Xerces notes who gave the
// memory.
bool IsReader(size_t size) {
  constexpr size_t kReader = sizeof(xercesc::XMLReader);
  return size >= kReader && size <= kReader + sizeof(std::max_align_t);
}

}  // namespace

XmlMemory::~XmlMemory() {
  if (compilation_) {
    compilation_->erase(spareReader_);
    for (void* const lost : *compilation_) ::operator delete(lost);
  }
  ::operator delete(spareReader_);
}

void* XmlMemory::allocate(XMLSize_t size) {
  budget_ -= static_cast<int64_t>(std::max(size, kSmallestCount));
  const int64_t least = size <= kSmallRequest ? -kOverdraft : 0;
  if (budget_ < least && !MustSucceed()) throw xercesc::OutOfMemoryException();
  const bool isReader = IsReader(size);
  void* memory = isReader ? std::exchange(spareReader_, nullptr) : nullptr;
  if (memory == nullptr) memory = FromSystem(size);
  if (memory == nullptr) memory = FromReserve(size);
  if (memory == nullptr) throw xercesc::OutOfMemoryException();
  if (isReader) return reader_ = memory;
  // Xerces destroys what an array of pointers holds also when it could not fill it to the end.
  return std::memset(memory, 0, size);
}

void XmlMemory::deallocate(void* memory) {
  if (IsReserve(memory)) {
    if (--pieces_ == 0) used_ = 0;
    return;
  }
  if (memory != nullptr && memory == reader_) {
    reader_ = nullptr;
    memory = std::exchange(spareReader_, memory);
  }
  if (compilation_) compilation_->erase(memory);
  ::operator delete(memory);
}

void* XmlMemory::FromSystem(size_t size) {
  void* const memory = ::operator new(size, std::nothrow);
  if (memory == nullptr || !compilation_) return memory;
  try {
    compilation_->insert(memory);
    return memory;
  } catch (const std::bad_alloc&) {
    ::operator delete(memory);
    return nullptr;
  }
}

bool XmlMemory::MustSucceed() const { return releases_ != 0 || std::uncaught_exceptions() != 0; }

// Null where an exception may be raised instead, and when nothing is left.
void* XmlMemory::FromReserve(size_t size) {
  constexpr size_t kStep = alignof(std::max_align_t);
  const bool mustSucceed = MustSucceed();
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
