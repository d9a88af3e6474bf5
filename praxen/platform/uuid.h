// Identifiers derived from names, and their text form.

#ifndef PRAXEN_PLATFORM_UUID_H_
#define PRAXEN_PLATFORM_UUID_H_

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "praxen/platform/automation.h"

namespace praxen {

namespace uuid_internal {

using Bytes = std::array<std::uint8_t, 16>;

// The sixteen bytes in the order in which the text form shows them.
constexpr Bytes ToBytes(const GUID& guid) {
  Bytes bytes = {};
  for (std::size_t i = 0; i < 4; ++i) {
    bytes[i] = static_cast<std::uint8_t>(guid.Data1 >> (24 - 8 * i));
  }
  for (std::size_t i = 0; i < 2; ++i) {
    bytes[4 + i] = static_cast<std::uint8_t>(guid.Data2 >> (8 - 8 * i));
    bytes[6 + i] = static_cast<std::uint8_t>(guid.Data3 >> (8 - 8 * i));
  }
  for (std::size_t i = 0; i < 8; ++i) bytes[8 + i] = guid.Data4[i];
  return bytes;
}

constexpr GUID FromBytes(const Bytes& bytes) {
  GUID guid = {};
  for (std::size_t i = 0; i < 4; ++i) guid.Data1 = guid.Data1 << 8 | bytes[i];
  guid.Data2 = static_cast<std::uint16_t>(bytes[4] << 8 | bytes[5]);
  guid.Data3 = static_cast<std::uint16_t>(bytes[6] << 8 | bytes[7]);
  for (std::size_t i = 0; i < 8; ++i) guid.Data4[i] = bytes[8 + i];
  return guid;
}

// SHA-1 over bytes that are added one by one.
class Sha1 {
 public:
  constexpr void Add(std::uint8_t byte) {
    block_[used_++] = byte;
    ++length_;
    if (used_ == block_.size()) AbsorbBlock();
  }

  // The first sixteen of the twenty bytes of the digest; nothing may be added afterwards.
  constexpr Bytes Finish() {
    const std::uint64_t bits = length_ * 8;
    Add(0x80);
    while (used_ != block_.size() - 8) Add(0);
    for (int shift = 56; shift >= 0; shift -= 8) Add(static_cast<std::uint8_t>(bits >> shift));
    Bytes digest = {};
    for (std::size_t i = 0; i < digest.size(); ++i) {
      digest[i] = static_cast<std::uint8_t>(state_[i / 4] >> (24 - 8 * (i % 4)));
    }
    return digest;
  }

 private:
  using Schedule = std::array<std::uint32_t, 80>;

  constexpr Schedule ExpandBlock() const {
    Schedule words = {};
    for (std::size_t i = 0; i < block_.size(); ++i) words[i / 4] = words[i / 4] << 8 | block_[i];
    for (std::size_t i = 16; i < words.size(); ++i) {
      words[i] = std::rotl(words[i - 3] ^ words[i - 8] ^ words[i - 14] ^ words[i - 16], 1);
    }
    return words;
  }

  static constexpr std::uint32_t Mix(std::size_t round, std::uint32_t b, std::uint32_t c,
                                     std::uint32_t d) {
    if (round < 20) return ((b & c) | (~b & d)) + 0x5A827999u;
    if (round < 40) return (b ^ c ^ d) + 0x6ED9EBA1u;
    if (round < 60) return ((b & c) | (b & d) | (c & d)) + 0x8F1BBCDCu;
    return (b ^ c ^ d) + 0xCA62C1D6u;
  }

  constexpr void AbsorbBlock() {
    const Schedule words = ExpandBlock();
    auto [a, b, c, d, e] = state_;
    for (std::size_t i = 0; i < words.size(); ++i) {
      const std::uint32_t next = std::rotl(a, 5) + Mix(i, b, c, d) + e + words[i];
      e = d;
      d = c;
      c = std::rotl(b, 30);
      b = a;
      a = next;
    }
    const std::array<std::uint32_t, 5> added = {a, b, c, d, e};
    for (std::size_t i = 0; i < state_.size(); ++i) state_[i] += added[i];
    used_ = 0;
  }

  std::array<std::uint32_t, 5> state_ = {0x67452301u, 0xEFCDAB89u, 0x98BADCFEu, 0x10325476u,
                                         0xC3D2E1F0u};
  std::array<std::uint8_t, 64> block_ = {};
  std::size_t used_ = 0;
  std::uint64_t length_ = 0;
};

}  // namespace uuid_internal

// The identifier of a name within a name space: version 5 of RFC 4122, the same for all time.
constexpr GUID NameUuid(const GUID& nameSpace, std::string_view name) {
  uuid_internal::Sha1 hash;
  for (const std::uint8_t byte : uuid_internal::ToBytes(nameSpace)) hash.Add(byte);
  for (const char c : name) hash.Add(static_cast<std::uint8_t>(c));
  uuid_internal::Bytes bytes = hash.Finish();
  bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x50);
  bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80);
  return uuid_internal::FromBytes(bytes);
}

// The text "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}" in upper case.
std::string UuidToText(const GUID& guid);

// Reads the text form in either case, with or without braces; none for any other text.
std::optional<GUID> TextToUuid(std::string_view text);
std::optional<GUID> TextToUuid(std::u16string_view text);

}  // namespace praxen

#endif  // PRAXEN_PLATFORM_UUID_H_
