// Region: memory for what is made while one document is read.
#ifndef PRAXEN_CORE_REGION_H_
#define PRAXEN_CORE_REGION_H_

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace praxen::detail {

/// Memory that is taken in order out of larger pieces. What was taken is given back one by one,
/// by whatever thread and when the region itself is long gone; a piece is given back as a whole
/// when nothing is left in it. One thread at a time takes from a region.
class Region {
 public:
  /// With so many bytes, or about so many, in the first piece.
  explicit Region(size_t firstPiece) noexcept;
  Region(const Region&) = delete;
  Region& operator=(const Region&) = delete;
  ~Region() { Close(); }

  /// What may be asked for at once, in bytes; more would leave too much of a piece unused.
  static constexpr size_t kLargest = 1024;

  /// Aligned for pointers and numbers; raises `std::bad_alloc`.
  void* Allocate(size_t bytes) {
    const size_t taken = kHead + (bytes + kAlignment - 1) / kAlignment * kAlignment;
    if (taken > room_) Grow();
    auto* const start = reinterpret_cast<Piece**>(next_);
    *start = piece_;
    next_ += taken;
    room_ -= taken;
    ++taken_;
    return start + 1;
  }
  static void Free(void* memory) noexcept { Leave(*(static_cast<Piece**>(memory) - 1), 1); }

 private:
  static constexpr size_t kAlignment = alignof(void*);
  // Before what is taken stands its piece.
  static constexpr size_t kHead = sizeof(void*);

  struct Piece {
    /// What lives in it and, while more may be taken from it, far more.
    std::atomic<uint32_t> held;
  };

  static void Leave(Piece* piece, uint32_t count) noexcept;
  void Grow();
  void Close() noexcept;

  Piece* piece_ = nullptr;
  std::byte* next_ = nullptr;
  size_t room_ = 0;
  size_t size_;
  uint32_t taken_ = 0;
};

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_REGION_H_
