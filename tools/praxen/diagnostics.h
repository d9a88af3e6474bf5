// Errors as a compiler prints them: file, place, what is wrong, and the line with a caret.
#ifndef PRAXEN_TOOLS_PRAXEN_DIAGNOSTICS_H_
#define PRAXEN_TOOLS_PRAXEN_DIAGNOSTICS_H_

#include <string>
#include <string_view>

#include "praxen/core/error.h"

namespace praxen::detail {

/// Prints "FILE: error: …" on standard error.
void PrintError(const std::string& file, std::string_view sentence);

/// Prints the error with its place in `text`, the content of the file, when it has one.
void PrintError(const std::string& file, const Error& error, const Text& text);

/// The line of the place, and below it a caret under the column. A long line is cut around the
/// column.
std::string SourceLines(std::u16string_view text, Place place);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_DIAGNOSTICS_H_
