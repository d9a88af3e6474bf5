// The files that keep documents.
#include "praxen/factory/document_file.h"

#include <cerrno>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

#include "praxen/core/error.h"
#include "praxen/core/place.h"
#include "praxen/factory/document_bytes.h"
#include "praxen/xml/xml_error.h"

namespace praxen::detail {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const char* what, const fs::path& file, int error) {
  throw fs::filesystem_error(what, file, std::error_code(error, std::generic_category()));
}

void WriteBytes(const fs::path& file, std::string_view bytes) {
  errno = 0;
  std::ofstream stream(file, std::ios::binary);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  stream.close();
  if (!stream) Fail("cannot write", file, errno);
}

// Where the links lead that a name stands for, also when nothing is there yet.
fs::path FollowLinks(fs::path file) {
  constexpr int kMostLinks = 40;
  for (int links = 0; fs::is_symlink(file); ++links) {
    if (links == kMostLinks) Fail("cannot write", file, ELOOP);
    file = file.parent_path() / fs::read_symlink(file);
  }
  return file;
}

// A name in the folder of the file that nobody else chooses, of a length that every folder allows.
fs::path NameBeside(const fs::path& file) {
  std::random_device random;
  return file.parent_path() /
         (".praxen-" + std::to_string(random()) + "-" + std::to_string(random()) + ".new");
}

// A file that may not be written is not replaced either, although its folder would allow that.
void RequireWritable(const fs::path& file) {
  errno = 0;
  if (!std::ofstream(file, std::ios::binary | std::ios::app)) Fail("cannot write", file, errno);
}

void Replace(const fs::path& file, std::string_view bytes, const fs::file_status& former) {
  if (fs::exists(former)) RequireWritable(file);
  const fs::path written = NameBeside(file);
  try {
    // Who may not read what was there never reads what comes.
    WriteBytes(written, {});
    if (fs::exists(former)) fs::permissions(written, former.permissions());
    WriteBytes(written, bytes);
    fs::rename(written, file);
  } catch (const fs::filesystem_error& error) {
    std::error_code ignored;
    fs::remove(written, ignored);
    throw fs::filesystem_error("cannot write", file, error.code());
  }
}

}  // namespace

std::string ReadDocumentBytes(const fs::path& file,
                              const std::function<void(size_t count)>& report) {
  std::error_code unknown;
  if (fs::is_directory(file, unknown)) Fail("cannot read", file, EISDIR);
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) Fail("cannot read", file, errno);
  std::string bytes = ReadDocumentBytes(stream, report);
  if (stream.bad()) Fail("cannot read", file, errno);
  return bytes;
}

}  // namespace praxen::detail

namespace praxen {

using namespace detail;

Text LoadDocument(const std::filesystem::path& file) {
  const DecodedDocument decoded = DecodeDocument(ReadDocumentBytes(file));
  if (decoded.malformed) {
    const XmlParseError error = MakeXmlError(u"The bytes do not encode a character.",
                                             PlaceAt(decoded.text, *decoded.malformed));
    throw InvalidXml(error.reason, error.place);
  }
  return decoded.text;
}

void SaveDocument(const std::filesystem::path& file, const Text& document, Encoding encoding) {
  const std::string bytes = EncodeDocument(document, encoding);
  const fs::path target = FollowLinks(file);
  const fs::file_status former = fs::status(target);
  // What is no file, such as a pipe, is written into.
  const bool isOther = fs::exists(former) && !fs::is_regular_file(former);
  isOther ? WriteBytes(target, bytes) : Replace(target, bytes, former);
}

}  // namespace praxen
