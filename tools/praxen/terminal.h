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

/// The text as UTF-8 on one line: line breaks become blanks, other control characters U+FFFD, so
/// that no document can steer the terminal. Tabs stay.
std::string Printable(std::u16string_view text);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_TERMINAL_H_
