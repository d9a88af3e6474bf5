// What the programs need to know of the terminal: whether there is one, its colours, and safe text.
#ifndef PRAXEN_TOOLS_PRAXEN_TERMINAL_H_
#define PRAXEN_TOOLS_PRAXEN_TERMINAL_H_

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace praxen::detail {

/// Whether the stream ends on a screen.
bool IsTerminal(FILE* stream);

/// Makes the standard streams pass bytes unchanged and the screen show UTF-8 and colours; returns
/// the arguments as UTF-8, without the program's name.
std::vector<std::string> PrepareStreams(int argc, char** argv);

/// The control sequences of a stream; all are empty unless it is a terminal that may have colours.
struct Colours {
  explicit Colours(FILE* stream);

  std::string_view red, yellow, cyan, bold, dim, reset;
};

/// Whether the character turns the direction in which the text around it is shown.
constexpr bool IsBidirectionalControl(char16_t c) {
  return c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) ||
         (c >= 0x2066 && c <= 0x2069);
}

/// The text as UTF-8 on one line: line breaks become blanks, bidirectional controls escapes such as
/// "\u202E", other control characters U+FFFD, so that no document and no file name can steer the
/// terminal. Tabs stay.
std::string Printable(std::u16string_view text);
/// The same of a text in UTF-8; what is malformed becomes U+FFFD.
std::string PrintableUtf8(std::string_view text);
/// How many characters a character of a text takes there; none for the second half of a pair.
size_t PrintedWidth(char16_t character);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_TERMINAL_H_
