// Errors and warnings as a compiler prints them.
#include "tools/praxen/diagnostics.h"

#include <algorithm>
#include <iostream>

#include "tools/praxen/terminal.h"

namespace praxen::detail {

namespace {

// How many characters of a line are shown at most, and how many of them before the column.
constexpr size_t kWidth = 96;
constexpr size_t kBefore = 60;

constexpr bool IsLowSurrogate(char16_t character) {
  return character >= 0xDC00 && character <= 0xDFFF;
}

// The offset, or that of the pair of surrogates in whose middle it lies.
size_t StartOfCharacter(std::u16string_view text, size_t offset) {
  const bool inside = offset > 0 && offset < text.size() && IsLowSurrogate(text[offset]);
  return inside ? offset - 1 : offset;
}

// What moves the caret below the end of the characters: tabs stay tabs, so that both lines have the
// same stops.
std::string Indentation(std::u16string_view characters) {
  std::string indentation;
  for (const char16_t character : characters) {
    indentation.append(PrintedWidth(character), character == u'\t' ? '\t' : ' ');
  }
  return indentation;
}

}  // namespace

std::u16string SentenceOf(const Error& error) {
  std::u16string description(error.description());
  const std::u16string place = u" (" + PlaceText(error.place()) + u")";
  if (description.ends_with(place)) description.resize(description.size() - place.size());
  if (!error.detail().empty()) description.append(u": ").append(error.detail());
  return description;
}

size_t SourceLines::StartOf(uint32_t line) {
  if (line < line_) {
    line_ = 1;
    start_ = 0;
  }
  start_ += OffsetAt(text_.substr(start_), {line - line_ + 1, 1});
  line_ = line;
  return start_;
}

std::string SourceLines::At(Place place) {
  const std::u16string_view rest = text_.substr(StartOf(std::max(place.line, 1U)));
  const size_t wanted = std::min<size_t>(std::max(place.column, 1U) - 1, rest.size());
  // The line is looked at no further than it is shown.
  const std::u16string_view after = rest.substr(wanted, kWidth + 1);
  const std::u16string_view line =
      rest.substr(0, wanted + std::min(after.find_first_of(u"\r\n"), after.size()));
  const size_t column = StartOfCharacter(line, wanted);
  const size_t cutStart = column > kBefore ? StartOfCharacter(line, column - kBefore) : 0;
  const size_t cutEnd = StartOfCharacter(line, std::min(cutStart + kWidth, line.size()));
  const std::u16string_view shown = line.substr(cutStart, cutEnd - cutStart);

  const std::string number = std::to_string(place.line);
  const bool isCut = cutStart > 0;
  std::string lines = "  " + number + " | " + (isCut ? "…" : "") + Printable(shown);
  lines += cutEnd < line.size() ? "…\n" : "\n";
  lines += "  " + std::string(number.size(), ' ') + " | " + (isCut ? " " : "");
  return lines + Indentation(shown.substr(0, column - cutStart)) + "^\n";
}

std::string_view NameOf(Severity severity) {
  constexpr std::string_view kNames[] = {"error", "warning", "note"};
  return kNames[static_cast<size_t>(severity)];
}

void PrintHead(std::ostream& stream, Severity severity, const std::string& file, Place place,
               std::string_view sentence) {
  const Colours colours(stderr);
  stream << colours.bold << file;
  if (place.line != 0) stream << ':' << place.line << ':' << place.column;
  const std::string_view all[] = {colours.red, colours.yellow, colours.cyan};
  stream << ": " << colours.reset << all[static_cast<size_t>(severity)] << NameOf(severity) << ": "
         << colours.reset << sentence << '\n';
}

nlohmann::ordered_json DiagnosticJson(Severity severity, Place place, const std::string& sentence) {
  nlohmann::ordered_json json{{"severity", NameOf(severity)}};
  if (place.line != 0) {
    json["line"] = place.line;
    json["column"] = place.column;
  }
  json["message"] = sentence;
  return json;
}

void PrintError(const std::string& file, std::string_view sentence) {
  std::cout.flush();
  PrintHead(std::cerr, Severity::Error, file, {}, sentence);
  std::cerr.flush();
}

void PrintError(std::ostream& stream, const std::string& file, const Error& error,
                const Text& text) {
  const Place place = error.place();
  PrintHead(stream, Severity::Error, file, place, Printable(SentenceOf(error)));
  if (place.line != 0) stream << SourceLines(text).At(place);
}

}  // namespace praxen::detail
