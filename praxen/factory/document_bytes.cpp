// The encodings that the first bytes of documents and their declarations tell.
#include "praxen/factory/document_bytes.h"

#include <utf8/checked.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "praxen/core/error.h"
#include "praxen/core/numbers.h"
#include "praxen/xml/xml_error.h"
#include "praxen/xml/xml_limits.h"
#include "praxen/xml/xml_markup.h"

namespace praxen::detail {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::u16string_view kUtf16Mark = u"\uFEFF";

enum class ByteOrder : uint8_t { Utf8, Utf16Little, Utf16Big };

// A document begins with an ASCII character or a byte-order mark, so its first two bytes tell which
// of them is the high one, if any.
ByteOrder ByteOrderOf(std::string_view bytes) {
  const std::string_view start = bytes.substr(0, 2);
  if (start == "\xFE\xFF") return ByteOrder::Utf16Big;
  if (start == "\xFF\xFE") return ByteOrder::Utf16Little;
  if (start.size() < 2 || (start[0] == '\0') == (start[1] == '\0')) return ByteOrder::Utf8;
  return start[0] == '\0' ? ByteOrder::Utf16Big : ByteOrder::Utf16Little;
}

// How many bytes of UTF-8 go on with a character, which have 10 as their highest bits. Eight are
// looked at together.
size_t CountContinuations(std::string_view bytes) {
  constexpr uint64_t kLowestBits = 0x0101010101010101;
  size_t count = 0;
  for (size_t at = 0; at < bytes.size(); at += sizeof(uint64_t)) {
    uint64_t eight = 0;
    std::memcpy(&eight, bytes.data() + at, std::min(sizeof eight, bytes.size() - at));
    count += static_cast<size_t>(std::popcount((eight >> 7) & ~(eight >> 6) & kLowestBits));
  }
  return count;
}

// About how many bytes of UTF-16 the characters take, but for characters of four bytes in UTF-8,
// which count half.
size_t Utf16Bytes(std::string_view bytes, ByteOrder order) {
  if (order != ByteOrder::Utf8) return bytes.size();
  return 2 * (bytes.size() - CountContinuations(bytes));
}

DecodedDocument DecodeUtf8(std::string_view bytes) {
  if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
  const auto invalid = utf8::find_invalid(bytes.begin(), bytes.end());
  DecodedDocument decoded{FromUtf8(bytes)};
  if (invalid != bytes.end()) {
    decoded.malformed = FromUtf8(std::string_view(bytes.begin(), invalid)).size();
  }
  return decoded;
}

DecodedDocument DecodeUtf16(std::string_view bytes, bool bigEndian) {
  std::u16string characters;
  characters.reserve(bytes.size() / 2 + 1);
  for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const unsigned low = static_cast<unsigned char>(bytes[i + (bigEndian ? 1 : 0)]);
    const unsigned high = static_cast<unsigned char>(bytes[i + (bigEndian ? 0 : 1)]);
    characters.push_back(static_cast<char16_t>(high << 8 | low));
  }
  if (characters.starts_with(kUtf16Mark)) characters.erase(0, kUtf16Mark.size());
  if (bytes.size() % 2 == 0) return {characters, Encoding::Utf16};
  const size_t end = characters.size();
  return {characters + u'\uFFFD', Encoding::Utf16, end};
}

[[noreturn]] void RefuseLength() {
  const XmlParseError error =
      MakeXmlError(u"The document is too long; at most " + DecimalText(kMaxXmlDocumentLength) +
                       u" characters are allowed.",
                   {});
  throw InvalidXml(error.reason, error.place);
}

}  // namespace

std::string ReadDocumentBytes(std::istream& stream,
                              const std::function<void(size_t count)>& report) {
  // With a byte-order mark.
  constexpr size_t kMostUtf16Bytes = 2 * (kMaxXmlDocumentLength + 1);
  std::string bytes;
  std::array<char, 1 << 16> buffer;
  // Bytes that are too few for too many characters are not counted.
  size_t counted = 0, utf16Bytes = 0;
  do {
    stream.read(buffer.data(), buffer.size());
    const auto count = static_cast<size_t>(stream.gcount());
    bytes.append(buffer.data(), count);
    if (report) report(count);
    if (2 * bytes.size() <= kMostUtf16Bytes) continue;
    utf16Bytes += Utf16Bytes(std::string_view(bytes).substr(counted), ByteOrderOf(bytes));
    counted = bytes.size();
    if (utf16Bytes > kMostUtf16Bytes) RefuseLength();
  } while (stream);
  return bytes;
}

DecodedDocument DecodeDocument(std::string_view bytes) {
  const ByteOrder order = ByteOrderOf(bytes);
  if (order == ByteOrder::Utf8) return DecodeUtf8(bytes);
  return DecodeUtf16(bytes, order == ByteOrder::Utf16Big);
}

DeclaredEncoding FindDeclaredEncoding(std::u16string_view document) {
  constexpr std::u16string_view kStart = u"<?xml";
  if (!document.starts_with(kStart)) return {};
  const std::u16string_view declaration = document.substr(0, document.find(u"?>"));
  for (size_t from = kStart.size();;) {
    const XmlRawAttribute given = NextXmlAttribute(declaration, from);
    if (given.offset == std::u16string_view::npos) return {};
    const auto offset = static_cast<size_t>(given.value.data() - document.data());
    if (given.name == u"encoding") return {given.value, offset};
    from = offset + given.value.size() + 1;
  }
}

std::u16string_view NameOf(Encoding encoding) {
  return encoding == Encoding::Utf8 ? u"UTF-8" : u"UTF-16";
}

std::string EncodeDocument(const Text& document, Encoding encoding) {
  std::u16string text(document.view());
  const DeclaredEncoding declared = FindDeclaredEncoding(document);
  if (declared.name.data() != nullptr) {
    text.replace(declared.offset, declared.name.size(), NameOf(encoding));
  }
  if (encoding == Encoding::Utf8) return ToUtf8(text);
  std::string bytes;
  bytes.reserve(2 * (text.size() + kUtf16Mark.size()));
  for (const std::u16string_view part : {kUtf16Mark, std::u16string_view(text)}) {
    for (const char16_t character : part) {
      bytes.push_back(static_cast<char>(character & 0xFF));
      bytes.push_back(static_cast<char>(character >> 8));
    }
  }
  return bytes;
}

}  // namespace praxen::detail
