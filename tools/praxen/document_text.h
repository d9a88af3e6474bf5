// Documents in files that are named in UTF-8, and on the standard streams.
#ifndef PRAXEN_TOOLS_PRAXEN_DOCUMENT_TEXT_H_
#define PRAXEN_TOOLS_PRAXEN_DOCUMENT_TEXT_H_

#include <filesystem>
#include <string>

#include "praxen/factory/document_bytes.h"
#include "tools/praxen/progress.h"

namespace praxen::detail {

/// The path of a file that is named in UTF-8.
std::filesystem::path PathOf(const std::string& name);

/// The content of a file, or of standard input for "-" and "/dev/stdin". Throws `std::system_error`
/// when it cannot be read, and `InvalidXml` as soon as it is longer than documents may be.
std::string ReadBytes(const std::string& name, Progress& progress);

/// Stores a document in a file, or prints it for "-". Throws an `Error` that tells what is wrong.
void WriteDocument(const std::string& name, const Text& document, Encoding encoding);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_DOCUMENT_TEXT_H_
