// The memory of the XML parser.
#ifndef PRAXEN_XML_XML_MEMORY_H_
#define PRAXEN_XML_XML_MEMORY_H_

#include <cstddef>
#include <cstdint>
#include <new>
#include <optional>
#include <unordered_set>
#include <xercesc/framework/MemoryManager.hpp>

namespace praxen::detail {

/// Gives Xerces the memory of the grammars and scanners of one engine, with a reserve: destructors
/// of Xerces ask for memory, too, and an exception that leaves one would end the process. Small
/// requests are therefore met from the reserve first, and that memory ran out is reported by
/// `RequireNoShortage`. An engine and its memory are used by one thread at a time.
class XmlMemory final : public xercesc::MemoryManager {
 public:
  /// While one lives, the reserve may be used to its end.
  class Release {
   public:
    explicit Release(XmlMemory& memory) : memory_(memory) { ++memory_.releases_; }
    Release(const Release&) = delete;
    Release& operator=(const Release&) = delete;
    ~Release() { --memory_.releases_; }

   private:
    XmlMemory& memory_;
  };

  XmlMemory() = default;
  XmlMemory(const XmlMemory&) = delete;
  XmlMemory& operator=(const XmlMemory&) = delete;
  /// Everything that was given out is back by then, but for what Xerces lost in a compilation that
  /// it could not finish, which is freed.
  ~XmlMemory() override;

  /// From now on Xerces gives back everything.
  void EndCompilation() { compilation_.reset(); }

  /// While it lives, no more than so many bytes are given, and what is asked for beyond them is
  /// refused as if memory had run out. Small requests count as 64 bytes.
  class Budget {
   public:
    Budget(XmlMemory& memory, int64_t bytes) : memory_(memory) { memory_.budget_ = bytes; }
    Budget(const Budget&) = delete;
    Budget& operator=(const Budget&) = delete;
    ~Budget() { memory_.budget_ = kUnlimited; }

    bool isSpent() const { return memory_.budget_ < 0; }

   private:
    XmlMemory& memory_;
  };

  xercesc::MemoryManager* getExceptionMemoryManager() override { return this; }
  void ForgetShortage() { shortage_ = false; }
  /// Raises std::bad_alloc when the reserve has been drawn on.
  void RequireNoShortage() const {
    if (shortage_) throw std::bad_alloc();
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

  static constexpr int64_t kUnlimited = INT64_MAX;

  void* FromSystem(size_t size);
  bool MustSucceed() const;
  void* FromReserve(size_t size);
  bool IsReserve(const void* memory) const;

  /// The memory of the reader that was given out last, and of one that is back: every document
  /// takes one, and it is too large for the allocator to have at hand.
  void* reader_ = nullptr;
  void* spareReader_ = nullptr;
  /// What was given out and is not back, until the compilation ends.
  std::optional<std::unordered_set<void*>> compilation_{std::in_place};
  int releases_ = 0;
  bool shortage_ = false;
  int64_t budget_ = kUnlimited;
  size_t used_ = 0;
  size_t pieces_ = 0;
  alignas(std::max_align_t) std::byte reserve_[kReserve];
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_MEMORY_H_
