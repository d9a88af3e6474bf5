// Pieces, and who gives them back.
#include "praxen/core/region.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace praxen::detail {

namespace {

constexpr size_t kSmallestPiece = 2 * Region::kLargest;
// Small, since whatever a client keeps of a document, be it one name, keeps a piece.
constexpr size_t kLargestPiece = size_t{1} << 12;
// The share of a piece that is open, so that taking from it need not be counted for other threads.
constexpr uint32_t kOpen = 1U << 31;

}  // namespace

Region::Region(size_t firstPiece) noexcept
    : size_(std::clamp(firstPiece, kSmallestPiece, kLargestPiece)) {}

void Region::Grow() {
  void* const memory = std::malloc(size_);
  if (memory == nullptr) throw std::bad_alloc();
  Close();
  piece_ = new (memory) Piece{kOpen};
  next_ = static_cast<std::byte*>(memory) + kAlignment;
  room_ = size_ - kAlignment;
  size_ = std::min(2 * size_, kLargestPiece);
}

void Region::Close() noexcept {
  if (piece_ != nullptr) Leave(piece_, kOpen - taken_);
  piece_ = nullptr;
  room_ = 0;
  taken_ = 0;
}

void Region::Leave(Piece* piece, uint32_t count) noexcept {
  if (piece->held.fetch_sub(count, std::memory_order_acq_rel) == count) std::free(piece);
}

}  // namespace praxen::detail
