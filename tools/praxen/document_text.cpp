// Documents as bytes, and the encodings that their declarations and first bytes tell.
#include "tools/praxen/document_text.h"

#include <utf8/checked.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <iostream>
#include <istream>
#include <system_error>

#include "praxen/core/error.h"
#include "praxen/core/numbers.h"
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

// At least how many characters the bytes hold twice.
size_t TwiceTheCharacters(std::string_view bytes, ByteOrder order) {
  if (order != ByteOrder::Utf8) return bytes.size();
  const auto starts = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; };
  return 2 * static_cast<size_t>(std::ranges::count_if(bytes, starts));
}

std::string ReadStream(std::istream& stream, Progress& progress) {
  std::string bytes;
  std::array<char, 1 << 16> buffer;
  // Documents that cannot be too long are not counted.
  size_t counted = 0, twice = 0;
  do {
    stream.read(buffer.data(), buffer.size());
    const auto count = static_cast<size_t>(stream.gcount());
    bytes.append(buffer.data(), count);
    progress.AddBytes(count);
    if (bytes.size() <= kMaxXmlDocumentLength) continue;
    twice += TwiceTheCharacters(std::string_view(bytes).substr(counted), ByteOrderOf(bytes));
    counted = bytes.size();
    if (twice / 2 > kMaxXmlDocumentLength + 1) {
      throw InvalidXml(u"The document is too long; at most " + DecimalText(kMaxXmlDocumentLength) +
                           u" characters are allowed.",
                       {});
    }
  } while (stream);
  if (stream.bad()) throw std::system_error(errno, std::generic_category());
  return bytes;
}

void WriteStream(std::ostream& stream, const std::string& bytes) {
  if (stream) errno = 0;
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush();
  if (!stream) throw std::system_error(errno == 0 ? EIO : errno, std::generic_category());
}

void ReplaceFile(const std::filesystem::path& file, const std::string& bytes) {
  std::filesystem::path beside = file;
  beside += ".praxen~";
  try {
    errno = 0;
    std::ofstream stream(beside, std::ios::binary);
    WriteStream(stream, bytes);
    stream.close();
    std::filesystem::permissions(beside, std::filesystem::status(file).permissions());
    std::filesystem::rename(beside, file);
  } catch (...) {
    std::error_code ignored;
    std::filesystem::remove(beside, ignored);
    throw;
  }
}

DecodedText DecodeUtf8(std::string_view bytes) {
  if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
  const auto invalid = utf8::find_invalid(bytes.begin(), bytes.end());
  DecodedText decoded{FromUtf8(bytes)};
  if (invalid != bytes.end()) {
    decoded.malformed = FromUtf8(std::string_view(bytes.begin(), invalid)).size();
  }
  return decoded;
}

DecodedText DecodeUtf16(std::string_view bytes, bool bigEndian) {
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

}  // namespace

std::filesystem::path PathOf(const std::string& name) {
  return std::filesystem::path(reinterpret_cast<const char8_t*>(name.c_str()));
}

std::string ReadBytes(const std::string& name, Progress& progress) {
  if (name == "-" || name == "/dev/stdin") return ReadStream(std::cin, progress);
  const std::filesystem::path path = PathOf(name);
  std::error_code unknown;
  if (std::filesystem::is_directory(path, unknown)) {
    throw std::system_error(std::make_error_code(std::errc::is_a_directory));
  }
  errno = 0;
  std::ifstream stream(path, std::ios::binary);
  if (!stream) throw std::system_error(errno, std::generic_category());
  return ReadStream(stream, progress);
}

void WriteBytes(const std::string& name, const std::string& bytes) {
  const std::filesystem::path path = PathOf(name);
  std::error_code error;
  if (name != "-" && path.has_parent_path() &&
      !std::filesystem::exists(path.parent_path(), error)) {
    throw Error(0, {}, u"there is no folder \"" + path.parent_path().u16string() + u"\"");
  }
  try {
    if (name == "-") {
      WriteStream(std::cout, bytes);
    } else if (std::filesystem::is_regular_file(path, error)) {
      // What stands behind a link is replaced, not the link.
      ReplaceFile(std::filesystem::canonical(path), bytes);
    } else {
      errno = 0;
      std::ofstream stream(path, std::ios::binary);
      WriteStream(stream, bytes);
    }
  } catch (const std::system_error& failure) {
    throw Error(0, {}, FromUtf8(failure.code().message()));
  }
}

DecodedText Decode(std::string_view bytes) {
  const ByteOrder order = ByteOrderOf(bytes);
  if (order == ByteOrder::Utf8) return DecodeUtf8(bytes);
  return DecodeUtf16(bytes, order == ByteOrder::Utf16Big);
}

DeclaredEncoding FindDeclaredEncoding(std::u16string_view text) {
  constexpr std::u16string_view kStart = u"<?xml";
  if (!text.starts_with(kStart)) return {};
  const std::u16string_view declaration = text.substr(0, text.find(u"?>"));
  size_t at = kStart.size();
  for (XmlRawAttribute given; (given = NextXmlAttribute(declaration, at)).offset != text.npos;) {
    const auto offset = static_cast<size_t>(given.value.data() - text.data());
    if (given.name == u"encoding") return {given.value, offset};
    at = offset + given.value.size() + 1;
  }
  return {};
}

std::u16string_view NameOf(Encoding encoding) {
  return encoding == Encoding::Utf8 ? u"UTF-8" : u"UTF-16";
}

std::string Encode(const Text& document, Encoding encoding) {
  std::u16string text(document.view());
  const DeclaredEncoding declared = FindDeclaredEncoding(text);
  if (!declared.name.empty()) text.replace(declared.offset, declared.name.size(), NameOf(encoding));
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
