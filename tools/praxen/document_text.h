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

/// The content of a file, or of standard input for "-" and "/dev/stdin"; throws
/// `std::system_error` when it cannot be read.
std::string ReadBytes(const std::string& name, Progress& progress);

struct DecodedText {
  Text text;
  /// The offset of the first character that the bytes do not encode, if there is one; U+FFFD stands
  /// in its place.
  std::optional<size_t> malformed;
};

/// Decodes UTF-8 or UTF-16 of either byte order, with or without byte-order mark, as the first two
/// bytes tell.
DecodedText Decode(std::string_view bytes);

enum class Encoding { Utf8, Utf16 };

/// The bytes of a text: UTF-16 in little-endian order after a byte-order mark, or UTF-8.
std::string Encode(const Text& text, Encoding encoding);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_DOCUMENT_TEXT_H_
