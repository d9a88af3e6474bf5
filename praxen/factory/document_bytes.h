// Documents as bytes: reading them from streams, and their encodings.
#ifndef PRAXEN_FACTORY_DOCUMENT_BYTES_H_
#define PRAXEN_FACTORY_DOCUMENT_BYTES_H_

#include <cstddef>
#include <filesystem>
#include <functional>
#include <istream>
#include <optional>
#include <string>
#include <string_view>

#include "praxen/factory/document_file.h"

namespace praxen::detail {

/// The bytes up to the end of the stream; `report` is told of each part of them. Raises
/// `InvalidXml` as soon as they are more than a document may have. An error of the stream ends
/// them.
std::string ReadDocumentBytes(std::istream& stream,
                              const std::function<void(size_t count)>& report = {});

/// The same for a file; raises std::filesystem::filesystem_error when it cannot be read.
std::string ReadDocumentBytes(const std::filesystem::path& file,
                              const std::function<void(size_t count)>& report = {});

struct DecodedDocument {
  Text text;
  Encoding encoding = Encoding::Utf8;
  /// The offset of the first character that the bytes do not encode, if there is one; U+FFFD stands
  /// in its place.
  std::optional<size_t> malformed = {};
};

/// The text that bytes of UTF-8 or UTF-16 stand for, as the first two of them tell.
DecodedDocument DecodeDocument(std::string_view bytes);

/// The bytes of a document, whose declaration names the encoding.
std::string EncodeDocument(const Text& document, Encoding encoding);

/// The encoding that the declaration of a document names, and where; empty when it names none.
struct DeclaredEncoding {
  std::u16string_view name;
  size_t offset = 0;
};
DeclaredEncoding FindDeclaredEncoding(std::u16string_view document);

/// "UTF-8" or "UTF-16".
std::u16string_view NameOf(Encoding encoding);

}  // namespace praxen::detail

#endif  // PRAXEN_FACTORY_DOCUMENT_BYTES_H_
