// Documents as bytes in files and streams.
#include "tools/praxen/document_text.h"

#include <cerrno>
#include <iostream>
#include <system_error>

#include "praxen/core/error.h"

namespace praxen::detail {

namespace {

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
  const auto report = [&](size_t count) { progress.AddBytes(count); };
  if (name != "-" && name != "/dev/stdin") return ReadDocumentBytes(PathOf(name), report);
  std::string bytes = ReadDocumentBytes(std::cin, report);
  if (std::cin.bad()) throw std::system_error(errno, std::generic_category());
  return bytes;
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
