// Documents as bytes, and the files that keep them.
#include "praxen/factory/document_file.h"

#include <utf8/checked.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <random>
#include <system_error>

#include "praxen/core/error.h"
#include "praxen/core/numbers.h"
#include "praxen/core/place.h"
#include "praxen/xml/xml_error.h"
#include "praxen/xml/xml_limits.h"
#include "praxen/xml/xml_markup.h"

namespace praxen::detail {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::u16string_view kUtf16Mark = u"\uFEFF";
// What no UTF-16 code unit exceeds in UTF-8.
constexpr size_t kBytesPerCharacter = 3;

DecodedDocument DecodeUtf8(std::string_view bytes) {
  if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
  const auto invalid = utf8::find_invalid(bytes.begin(), bytes.end());
  DecodedDocument decoded{FromUtf8(bytes), {}};
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
  if (bytes.size() % 2 == 0) return {characters, {}};
  const size_t end = characters.size();
  return {characters + u'\uFFFD', end};
}

// The document with the encoding that its declaration names, if it names one, replaced.
std::u16string Declare(std::u16string_view document, std::u16string_view encoding) {
  std::u16string text(document);
  if (!document.starts_with(u"<?xml")) return text;
  const std::u16string_view declaration = document.substr(0, document.find(u"?>"));
  for (size_t from = 5; from < declaration.size();) {
    const XmlRawAttribute attribute = NextXmlAttribute(declaration, from);
    if (attribute.offset == std::u16string_view::npos) break;
    const auto begin = static_cast<size_t>(attribute.value.data() - document.data());
    if (attribute.name == u"encoding") {
      return text.replace(begin, attribute.value.size(), encoding);
    }
    from = begin + attribute.value.size() + 1;
  }
  return text;
}

[[noreturn]] void Refuse(std::u16string reason, Place place) {
  const XmlParseError error = MakeXmlError(std::move(reason), place);
  throw InvalidXml(error.reason, error.place);
}

[[noreturn]] void Fail(const char* what, const fs::path& file, int error) {
  throw fs::filesystem_error(what, file, std::error_code(error, std::generic_category()));
}

std::string ReadBytes(const fs::path& file) {
  std::error_code unknown;
  if (fs::is_directory(file, unknown)) Fail("cannot read", file, EISDIR);
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) Fail("cannot read", file, errno);
  std::string bytes;
  std::array<char, 1 << 16> buffer;
  do {
    stream.read(buffer.data(), buffer.size());
    bytes.append(buffer.data(), static_cast<size_t>(stream.gcount()));
    if (bytes.size() > kBytesPerCharacter * (kMaxXmlDocumentLength + 1)) {
      Refuse(u"The document is too long; at most " + DecimalText(kMaxXmlDocumentLength) +
                 u" characters are allowed.",
             {});
    }
  } while (stream);
  if (stream.bad()) Fail("cannot read", file, errno);
  return bytes;
}

void WriteBytes(const fs::path& file, std::string_view bytes) {
  errno = 0;
  std::ofstream stream(file, std::ios::binary);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  stream.close();
  if (!stream) Fail("cannot write", file, errno);
}

// A name beside the file that no other writer chooses.
fs::path NameBeside(const fs::path& file) {
  std::random_device random;
  fs::path name = file;
  return name += "." + std::to_string(random()) + ".new";
}

void Replace(const fs::path& file, std::string_view bytes, const fs::file_status& former) {
  const fs::path written = NameBeside(file);
  try {
    WriteBytes(written, bytes);
    if (fs::exists(former)) fs::permissions(written, former.permissions());
    fs::rename(written, file);
  } catch (...) {
    std::error_code ignored;
    fs::remove(written, ignored);
    throw;
  }
}

}  // namespace

// A document begins with an ASCII character or a byte-order mark, so its first two bytes tell which
// of them is the high one, if any.
DecodedDocument DecodeDocument(std::string_view bytes) {
  const std::string_view start = bytes.substr(0, 2);
  if (start == "\xFE\xFF") return DecodeUtf16(bytes, true);
  if (start == "\xFF\xFE") return DecodeUtf16(bytes, false);
  if (start.size() == 2 && start[0] == '\0' && start[1] != '\0') return DecodeUtf16(bytes, true);
  if (start.size() == 2 && start[0] != '\0' && start[1] == '\0') return DecodeUtf16(bytes, false);
  return DecodeUtf8(bytes);
}

std::string EncodeDocument(const Text& document, Encoding encoding) {
  if (encoding == Encoding::Utf8) return ToUtf8(Declare(document, u"UTF-8"));
  const std::u16string text = Declare(document, u"UTF-16");
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

namespace praxen {

using namespace detail;

Text LoadDocument(const std::filesystem::path& file) {
  const DecodedDocument decoded = DecodeDocument(ReadBytes(file));
  if (decoded.malformed) {
    Refuse(u"The bytes do not encode a character.", PlaceAt(decoded.text, *decoded.malformed));
  }
  return decoded.text;
}

void SaveDocument(const std::filesystem::path& file, const Text& document, Encoding encoding) {
  const std::string bytes = EncodeDocument(document, encoding);
  const fs::path target = fs::is_symlink(file) ? fs::weakly_canonical(file) : file;
  const fs::file_status former = fs::status(target);
  // What is no file, such as a pipe, is written into.
  const bool isOther = fs::exists(former) && !fs::is_regular_file(former);
  isOther ? WriteBytes(target, bytes) : Replace(target, bytes, former);
}

}  // namespace praxen
