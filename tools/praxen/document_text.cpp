// Documents as bytes in files and streams.
#include "tools/praxen/document_text.h"

#include <cerrno>
#include <fstream>
#include <iostream>
#include <system_error>

#include "praxen/core/error.h"

namespace praxen::detail {

namespace {

std::string ReadStream(std::istream& stream, Progress& progress) {
  std::string bytes = ReadDocumentBytes(stream, [&](size_t count) { progress.AddBytes(count); });
  if (stream.bad()) throw std::system_error(errno, std::generic_category());
  return bytes;
}

void Print(const std::string& bytes) {
  errno = 0;
  std::cout.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush();
  if (!std::cout) throw std::system_error(errno, std::generic_category());
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

void WriteDocument(const std::string& name, const Text& document, Encoding encoding) {
  try {
    if (name == "-") return Print(EncodeDocument(document, encoding));
    const std::filesystem::path path = PathOf(name), folder = path.parent_path();
    std::error_code unknown;
    if (!folder.empty() && !std::filesystem::exists(folder, unknown)) {
      throw Error(0, {}, u"there is no folder \"" + folder.u16string() + u"\"");
    }
    SaveDocument(path, document, encoding);
  } catch (const std::system_error& error) {
    throw Error(0, {}, FromUtf8(error.code().message()));
  }
}

}  // namespace praxen::detail
