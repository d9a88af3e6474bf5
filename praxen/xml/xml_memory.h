// The memory of the XML parser.
#ifndef PRAXEN_XML_XML_MEMORY_H_
#define PRAXEN_XML_XML_MEMORY_H_

#include <atomic>
#include <cstddef>
#include <mutex>
#include <new>
#include <xercesc/framework/MemoryManager.hpp>

namespace praxen::detail {

/// Gives Xerces the memory of grammars and scanners, with a reserve: destructors of Xerces
/// ask for memory, too, and an exception that leaves one would end the process. Small requests are
/// therefore met from the reserve first, and that memory ran out is reported by
/// `RequireNoShortage`.
class XmlMemory final : public xercesc::MemoryManager {
 public:
  /// While one lives on any thread, the reserve may be used to its end.
  class Release {
   public:
    explicit Release(XmlMemory& memory) : memory_(memory) { memory_.CountReleases(1); }
    Release(const Release&) = delete;
    Release& operator=(const Release&) = delete;
    ~Release() {
      memory_.CountReleases(-1);
      memory_.GiveUpSpareReader();
    }

   private:
    XmlMemory& memory_;
  };

  /// The one of the library, which is never destroyed.
  static XmlMemory& Instance();

  xercesc::MemoryManager* getExceptionMemoryManager() override { return this; }
  void ForgetShortage() { shortage_ = false; }
  /// Raises std::bad_alloc when the reserve has been drawn on.
  void RequireNoShortage() const {
    if (shortage_.load(std::memory_order_relaxed)) throw std::bad_alloc();
  }
  /// Raises Xerces' OutOfMemoryException when the reserve does not suffice either.
  void* allocate(XMLSize_t size) override;
  void deallocate(void* memory) override;

 private:
  /// Enough for all small requests of a schema. What is not used costs no memory.
  static constexpr size_t kReserve = size_t{4} << 20;
  /// What is kept for destructors, and the largest request that may be one of a destructor.
  static constexpr size_t kLastReserve = size_t{1} << 20;
  static constexpr size_t kSmallRequest = 256;

  XmlMemory() = default;

  void CountReleases(int change);
  void GiveUpSpareReader() noexcept;
  void* FromReserve(size_t size);
  bool IsReserve(const void* memory) const;

  std::mutex mutex_;
  /// The memory of the reader that was given out last, and of one that is back: every document
  /// takes one, and it is too large for the allocator to have at hand.
  std::atomic<void*> reader_ = nullptr;
  std::atomic<void*> spareReader_ = nullptr;
  int releases_ = 0;
  std::atomic<bool> shortage_ = false;
  size_t used_ = 0;
  size_t pieces_ = 0;
  alignas(std::max_align_t) std::byte reserve_[kReserve];
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_MEMORY_H_
