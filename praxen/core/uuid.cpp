// The text form of identifiers.
#include "praxen/core/uuid.h"

namespace praxen::detail {

namespace {

using detail::Bytes;

constexpr size_t kTextLength = 36;

bool HyphenBeforeByte(size_t index) {
  return index == 4 || index == 6 || index == 8 || index == 10;
}

template <class Char>
int HexDigitValue(Char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

template <class Char>
std::basic_string_view<Char> WithoutBraces(std::basic_string_view<Char> text) {
  const bool braces = text.size() == kTextLength + 2 && text.front() == '{' && text.back() == '}';
  return braces ? text.substr(1, kTextLength) : text;
}

template <class Char>
std::optional<Uuid> Parse(std::basic_string_view<Char> text) {
  text = WithoutBraces(text);
  if (text.size() != kTextLength) return std::nullopt;
  Bytes bytes = {};
  for (size_t i = 0, at = 0; i < bytes.size(); ++i, at += 2) {
    if (HyphenBeforeByte(i) && text[at++] != '-') return std::nullopt;
    const int high = HexDigitValue(text[at]);
    const int low = HexDigitValue(text[at + 1]);
    if (high < 0 || low < 0) return std::nullopt;
    bytes[i] = static_cast<uint8_t>(high * 16 + low);
  }
  return detail::FromBytes(bytes);
}

}  // namespace

std::string UuidToText(const Uuid& uuid) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const Bytes bytes = detail::ToBytes(uuid);
  std::string text = "{";
  for (size_t i = 0; i < bytes.size(); ++i) {
    if (HyphenBeforeByte(i)) text += '-';
    text += kDigits[bytes[i] >> 4];
    text += kDigits[bytes[i] & 0x0F];
  }
  return text + '}';
}

std::optional<Uuid> TextToUuid(std::string_view text) { return Parse(text); }

std::optional<Uuid> TextToUuid(std::u16string_view text) { return Parse(text); }

}  // namespace praxen::detail
