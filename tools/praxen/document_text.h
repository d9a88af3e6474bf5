// Documents as bytes: reading them from files, and their encodings.
#ifndef PRAXEN_TOOLS_PRAXEN_DOCUMENT_TEXT_H_
#define PRAXEN_TOOLS_PRAXEN_DOCUMENT_TEXT_H_

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "praxen/core/text.h"
#include "tools/praxen/progress.h"

namespace praxen::detail {

/// The path of a file that is named in UTF-8.
std::filesystem::path PathOf(const std::string& name);

/// The content of a file, or of standard input for "-" and "/dev/stdin". Throws `std::system_error`
/// when it cannot be read, and `InvalidXml` as soon as it is longer than documents may be.
std::string ReadBytes(const std::string& name, Progress& progress);

/// Puts the bytes in the place of a file's content, and leaves that alone when they cannot all be
/// written; for "-" they go to standard output. Throws an `Error` that tells what is wrong.
void WriteBytes(const std::string& name, const std::string& bytes);

enum class Encoding { Utf8, Utf16 };

struct DecodedText {
  Text text;
  Encoding encoding = Encoding::Utf8;
  /// The offset of the first character that the bytes do not encode, if there is one; U+FFFD stands
  /// in its place.
  std::optional<size_t> malformed = {};
};

/// Decodes UTF-8 or UTF-16 of either byte order, with or without byte-order mark, as the first two
/// bytes tell.
DecodedText Decode(std::string_view bytes);

/// The bytes of a document, whose declaration is made to name the encoding: UTF-16 in little-endian
/// order after a byte-order mark, or UTF-8.
std::string Encode(const Text& text, Encoding encoding);

/// The name of the encoding that the document declares, and where it stands; empty without one.
struct DeclaredEncoding {
  std::u16string_view name;
  size_t offset = 0;
};
DeclaredEncoding FindDeclaredEncoding(std::u16string_view text);

/// "UTF-8" or "UTF-16".
std::u16string_view NameOf(Encoding encoding);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_DOCUMENT_TEXT_H_
