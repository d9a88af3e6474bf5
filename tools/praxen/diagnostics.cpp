// Errors as a compiler prints them.
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
    if (!IsLowSurrogate(character)) indentation.push_back(character == u'\t' ? '\t' : ' ');
  }
  return indentation;
}

// Description and detail, without the place that a reason of the parser ends with.
std::u16string SentenceOf(const Error& error) {
  std::u16string description(error.description());
  const std::u16string place = u" (" + PlaceText(error.place()) + u")";
  if (description.ends_with(place)) description.resize(description.size() - place.size());
  if (!error.detail().empty()) description.append(u": ").append(error.detail());
  return description;
}

}  // namespace

std::string SourceLines(std::u16string_view text, Place place) {
  const size_t start = OffsetAt(text, {place.line, 1});
  const size_t end = std::min(text.find_first_of(u"\r\n", start), text.size());
  const std::u16string_view line = text.substr(start, end - start);
  const size_t column =
      StartOfCharacter(line, std::min<size_t>(std::max(place.column, 1U) - 1, line.size()));
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

void PrintError(const std::string& file, std::string_view sentence) {
  const Colours colours(stderr);
  std::cout.flush();
  std::cerr << colours.bold << file << ": " << colours.reset << colours.red
            << "error: " << colours.reset << sentence << std::endl;
}

void PrintError(const std::string& file, const Error& error, const Text& text) {
  const Place place = error.place();
  if (place.line == 0) return PrintError(file, Printable(SentenceOf(error)));
  PrintError(file + ':' + std::to_string(place.line) + ':' + std::to_string(place.column),
             Printable(SentenceOf(error)));
  std::cerr << SourceLines(text, place) << std::flush;
}

}  // namespace praxen::detail
