// Errors and warnings as a compiler prints them: file, place, what is wrong, and the line with a
// caret.
#ifndef PRAXEN_TOOLS_PRAXEN_DIAGNOSTICS_H_
#define PRAXEN_TOOLS_PRAXEN_DIAGNOSTICS_H_

#include <cstdint>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <string_view>

#include "praxen/core/error.h"

namespace praxen::detail {

// Files are named as they are shown; what is printed has the colours of standard error.

enum class Severity : uint8_t { Error, Warning, Note };

/// Prints "FILE: error: …" on standard error.
void PrintError(const std::string& file, std::string_view sentence);

/// Description and detail, without the place that a reason of the parser ends with.
std::u16string SentenceOf(const Error& error);

/// Prints the error with its place in `text`, the content of the file, when it has one.
void PrintError(std::ostream& stream, const std::string& file, const Error& error,
                const Text& text);

/// "error", "warning" or "note".
std::string_view NameOf(Severity severity);

/// Prints "FILE:LINE:COLUMN: warning: …", without the place when its line is 0.
void PrintHead(std::ostream& stream, Severity severity, const std::string& file, Place place,
               std::string_view sentence);

/// The same as JSON: "severity", "line" and "column" unless the line is 0, "message".
nlohmann::ordered_json DiagnosticJson(Severity severity, Place place, const std::string& sentence);

/// The lines of a text; quick for places that are asked for in their order.
class SourceLines {
 public:
  explicit SourceLines(std::u16string_view text) : text_(text) {}

  /// The line of the place, and below it a caret under the column. A long line is cut around the
  /// column.
  std::string At(Place place);

 private:
  size_t StartOf(uint32_t line);

  const std::u16string_view text_;
  /// The line asked for last, and where it begins.
  uint32_t line_ = 1;
  size_t start_ = 0;
};

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_DIAGNOSTICS_H_
