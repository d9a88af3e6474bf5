// Documents in files, in the encodings of Unicode.
#ifndef PRAXEN_FACTORY_DOCUMENT_FILE_H_
#define PRAXEN_FACTORY_DOCUMENT_FILE_H_

#include <cstdint>
#include <filesystem>

#include "praxen/core/text.h"

namespace praxen {

/// How the characters of a document stand in a file.
enum class Encoding : uint8_t {
  /// Little-endian, after a byte-order mark: what the engineering tool writes.
  Utf16,
  /// Without a byte-order mark.
  Utf8
};

/// The document in a file of UTF-8 or UTF-16, in either byte order and with or without a byte-order
/// mark, as its first bytes tell (XML 1.0, appendix F). Raises std::filesystem::filesystem_error
/// when the file cannot be read, and `InvalidXml` when its bytes are no text of its encoding or
/// more than a document may have.
Text LoadDocument(const std::filesystem::path& file);

/// Stores a document as a file and has its XML declaration name the encoding. A file that is there
/// is replaced as a whole once all is written, and keeps its permissions; a symbolic link stays.
/// Raises std::filesystem::filesystem_error, and leaves what was there, when that fails.
void SaveDocument(const std::filesystem::path& file, const Text& document,
                  Encoding encoding = Encoding::Utf16);

}  // namespace praxen

#endif  // PRAXEN_FACTORY_DOCUMENT_FILE_H_
