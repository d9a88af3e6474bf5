// Documents as bytes, and the encodings that their declarations and first bytes tell.
#include "tools/praxen/document_text.h"

#include <utf8/checked.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <iostream>
#include <istream>
#include <system_error>

namespace praxen::detail {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::u16string_view kUtf16Mark = u"\uFEFF";

std::string ReadStream(std::istream& stream, Progress& progress) {
  std::string bytes;
  std::array<char, 1 << 16> buffer;
  do {
    stream.read(buffer.data(), buffer.size());
    const auto count = static_cast<size_t>(stream.gcount());
    bytes.append(buffer.data(), count);
    progress.AddBytes(count);
  } while (stream);
  if (stream.bad()) throw std::system_error(errno, std::generic_category());
  return bytes;
}

DecodedText DecodeUtf8(std::string_view bytes) {
  if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
  const auto invalid = utf8::find_invalid(bytes.begin(), bytes.end());
  DecodedText decoded{FromUtf8(bytes), {}};
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
  if (bytes.size() % 2 == 0) return {characters, {}};
  const size_t end = characters.size();
  return {characters + u'\uFFFD', end};
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

// A document begins with an ASCII character or a byte-order mark, so its first two bytes tell which
// of them is the high one, if any.
DecodedText Decode(std::string_view bytes) {
  const std::string_view start = bytes.substr(0, 2);
  if (start == "\xFE\xFF") return DecodeUtf16(bytes, true);
  if (start == "\xFF\xFE") return DecodeUtf16(bytes, false);
  if (start.size() == 2 && start[0] == '\0' && start[1] != '\0') return DecodeUtf16(bytes, true);
  if (start.size() == 2 && start[0] != '\0' && start[1] == '\0') return DecodeUtf16(bytes, false);
  return DecodeUtf8(bytes);
}

std::string Encode(const Text& text, Encoding encoding) {
  if (encoding == Encoding::Utf8) return ToUtf8(text);
  std::string bytes;
  bytes.reserve(2 * (text.size() + kUtf16Mark.size()));
  for (const std::u16string_view part : {kUtf16Mark, text.view()}) {
    for (const char16_t character : part) {
      bytes.push_back(static_cast<char>(character & 0xFF));
      bytes.push_back(static_cast<char>(character >> 8));
    }
  }
  return bytes;
}

}  // namespace praxen::detail
