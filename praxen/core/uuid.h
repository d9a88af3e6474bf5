// Uuid, an identifier derived from a name, and its text form.
#ifndef PRAXEN_CORE_UUID_H_
#define PRAXEN_CORE_UUID_H_

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "praxen/core/language.h"

namespace praxen::detail {

/// An identifier of 128 bits in the fields of RFC 4122, which lie as those of an automation
/// identifier do.
struct Uuid {
  uint32_t data1 = 0;
  uint16_t data2 = 0, data3 = 0;
  std::array<uint8_t, 8> data4 = {};

  friend bool operator==(const Uuid&, const Uuid&) = default;
};

using Bytes = std::array<uint8_t, 16>;

/// The sixteen bytes in the order in which the text form shows them.
constexpr Bytes ToBytes(const Uuid& uuid) {
  Bytes bytes = {};
  for (size_t i = 0; i < 4; ++i) {
    bytes[i] = static_cast<uint8_t>(uuid.data1 >> (24 - 8 * i));
  }
  for (size_t i = 0; i < 2; ++i) {
    bytes[4 + i] = static_cast<uint8_t>(uuid.data2 >> (8 - 8 * i));
    bytes[6 + i] = static_cast<uint8_t>(uuid.data3 >> (8 - 8 * i));
  }
  for (size_t i = 0; i < 8; ++i) bytes[8 + i] = uuid.data4[i];
  return bytes;
}

constexpr Uuid FromBytes(const Bytes& bytes) {
  Uuid uuid;
  for (size_t i = 0; i < 4; ++i) uuid.data1 = uuid.data1 << 8 | bytes[i];
  uuid.data2 = static_cast<uint16_t>(bytes[4] << 8 | bytes[5]);
  uuid.data3 = static_cast<uint16_t>(bytes[6] << 8 | bytes[7]);
  for (size_t i = 0; i < 8; ++i) uuid.data4[i] = bytes[8 + i];
  return uuid;
}

/// SHA-1 over bytes that are added one by one.
class Sha1 {
 public:
  constexpr void Add(uint8_t byte) {
    block_[used_++] = byte;
    ++length_;
    if (used_ == block_.size()) AbsorbBlock();
  }

  /// The first sixteen of the twenty bytes of the digest; nothing may be added afterwards.
  constexpr Bytes Finish() {
    const uint64_t bits = length_ * 8;
    Add(0x80);
    while (used_ != block_.size() - 8) Add(0);
    for (int shift = 56; shift >= 0; shift -= 8) Add(static_cast<uint8_t>(bits >> shift));
    Bytes digest = {};
    for (size_t i = 0; i < digest.size(); ++i) {
      digest[i] = static_cast<uint8_t>(state_[i / 4] >> (24 - 8 * (i % 4)));
    }
    return digest;
  }

 private:
  using Schedule = std::array<uint32_t, 80>;

  constexpr Schedule ExpandBlock() const {
    Schedule words = {};
    for (size_t i = 0; i < block_.size(); ++i) words[i / 4] = words[i / 4] << 8 | block_[i];
    for (size_t i = 16; i < words.size(); ++i) {
      words[i] = std::rotl(words[i - 3] ^ words[i - 8] ^ words[i - 14] ^ words[i - 16], 1);
    }
    return words;
  }

  static constexpr uint32_t Mix(size_t round, uint32_t b, uint32_t c, uint32_t d) {
    if (round < 20) return ((b & c) | (~b & d)) + 0x5A827999u;
    if (round < 40) return (b ^ c ^ d) + 0x6ED9EBA1u;
    if (round < 60) return ((b & c) | (b & d) | (c & d)) + 0x8F1BBCDCu;
    return (b ^ c ^ d) + 0xCA62C1D6u;
  }

  constexpr void AbsorbBlock() {
    const Schedule words = ExpandBlock();
    auto [a, b, c, d, e] = state_;
    for (size_t i = 0; i < words.size(); ++i) {
      const uint32_t next = std::rotl(a, 5) + Mix(i, b, c, d) + e + words[i];
      e = d;
      d = c;
      c = std::rotl(b, 30);
      b = a;
      a = next;
    }
    const std::array<uint32_t, 5> added = {a, b, c, d, e};
    for (size_t i = 0; i < state_.size(); ++i) state_[i] += added[i];
    used_ = 0;
  }

  std::array<uint32_t, 5> state_ = {0x67452301u, 0xEFCDAB89u, 0x98BADCFEu, 0x10325476u,
                                    0xC3D2E1F0u};
  std::array<uint8_t, 64> block_ = {};
  size_t used_ = 0;
  uint64_t length_ = 0;
};

/// The identifier of a name within a name space: version 5 of RFC 4122, the same for all
/// time. The name may be given in parts.
template <class... Parts>
constexpr Uuid NameUuid(const Uuid& nameSpace, const Parts&... name) {
  detail::Sha1 hash;
  for (const uint8_t byte : detail::ToBytes(nameSpace)) hash.Add(byte);
  const auto add = [&](std::string_view part) {
    for (const char c : part) hash.Add(static_cast<uint8_t>(c));
  };
  (add(name), ...);
  detail::Bytes bytes = hash.Finish();
  bytes[6] = static_cast<uint8_t>((bytes[6] & 0x0F) | 0x50);
  bytes[8] = static_cast<uint8_t>((bytes[8] & 0x3F) | 0x80);
  return detail::FromBytes(bytes);
}

/// The text "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}" in upper case.
std::string UuidToText(const Uuid& uuid);

/// Reads the text form in either case, with or without braces; none for any other text.
std::optional<Uuid> TextToUuid(std::string_view text);
std::optional<Uuid> TextToUuid(std::u16string_view text);

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_UUID_H_
