// SipHash, and where its key comes from.
#include "praxen/core/seeded_hash.h"

#include <bit>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <random>

namespace praxen::detail {
namespace {

struct Key {
  uint64_t first, second;
};

// Where there is no source of random numbers, the clock and the place of the library in memory have
// to do.
Key DrawKey() noexcept {
  static const char place = 0;
  const auto time =
      static_cast<uint64_t>(std::chrono::high_resolution_clock::now().time_since_epoch().count());
  Key key = {time * 0x9E3779B97F4A7C15u, std::bit_cast<uintptr_t>(&place) * 0xC2B2AE3D27D4EB4Fu};
  try {
    std::random_device source;
    key.first ^= (uint64_t{source()} << 32) | source();
    key.second ^= (uint64_t{source()} << 32) | source();
  } catch (...) {
  }
  return key;
}

class Sip {
 public:
  explicit Sip(const Key& key)
      : a_(key.first ^ 0x736F6D6570736575u),
        b_(key.second ^ 0x646F72616E646F6Du),
        c_(key.first ^ 0x6C7967656E657261u),
        d_(key.second ^ 0x7465646279746573u) {}

  void Add(uint64_t block) {
    d_ ^= block;
    Round();
    a_ ^= block;
  }
  uint64_t Finish() {
    c_ ^= 0xFF;
    for (int round = 0; round < 3; ++round) Round();
    return a_ ^ b_ ^ c_ ^ d_;
  }

 private:
  void Round() {
    a_ += b_;
    b_ = std::rotl(b_, 13) ^ a_;
    a_ = std::rotl(a_, 32);
    c_ += d_;
    d_ = std::rotl(d_, 16) ^ c_;
    a_ += d_;
    d_ = std::rotl(d_, 21) ^ a_;
    c_ += b_;
    b_ = std::rotl(b_, 17) ^ c_;
    c_ = std::rotl(c_, 32);
  }

  uint64_t a_, b_, c_, d_;
};

}  // namespace

size_t SeededHash(std::u16string_view text) noexcept {
  static const Key key = DrawKey();
  constexpr size_t kBlock = sizeof(uint64_t) / sizeof(char16_t);
  Sip sip(key);
  const uint64_t size = text.size();
  for (; text.size() >= kBlock; text.remove_prefix(kBlock)) {
    uint64_t block;
    std::memcpy(&block, text.data(), sizeof block);
    sip.Add(block);
  }
  uint64_t last = size << 56;
  for (size_t i = 0; i < text.size(); ++i) last |= uint64_t{text[i]} << (16 * i);
  sip.Add(last);
  return static_cast<size_t>(sip.Finish());
}

}  // namespace praxen::detail
