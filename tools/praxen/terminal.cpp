// What the programs ask of the terminal.
#include "tools/praxen/terminal.h"

#include <algorithm>
#include <cstdlib>

#include "praxen/core/text.h"

#ifdef _WIN32
#include <windows.h>
// Needs the types of the header above.
#include <shellapi.h>

#include <fcntl.h>
#include <io.h>
#else
#include <unistd.h>
#endif

namespace praxen::detail {

namespace {

constexpr char16_t ToPrintable(char16_t character) {
  if (character == u'\t') return character;
  if (character == u'\n' || character == u'\r') return u' ';
  const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
  return isControl ? u'\uFFFD' : character;
}

std::u16string Escaped(char16_t character) {
  std::u16string escape = u"\\u";
  for (int shift = 12; shift >= 0; shift -= 4) {
    escape.push_back(u"0123456789ABCDEF"[character >> shift & 0xF]);
  }
  return escape;
}

bool AllowsColours(FILE* stream) {
  const char* const refused = std::getenv("NO_COLOR");
  return IsTerminal(stream) && (refused == nullptr || *refused == '\0');
}

}  // namespace

#ifdef _WIN32

bool IsTerminal(FILE* stream) { return _isatty(_fileno(stream)) != 0; }

std::vector<std::string> PrepareStreams(int, char**) {
  for (FILE* const stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
  for (const DWORD handle : {STD_OUTPUT_HANDLE, STD_ERROR_HANDLE}) {
    DWORD mode = 0;
    if (GetConsoleMode(GetStdHandle(handle), &mode) == 0) continue;
    SetConsoleMode(GetStdHandle(handle), mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
  }
  int count = 0;
  LPWSTR* const given = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) {
    arguments.push_back(ToUtf8(reinterpret_cast<const char16_t*>(given[i])));
  }
  LocalFree(given);
  return arguments;
}

#else

bool IsTerminal(FILE* stream) { return isatty(fileno(stream)) != 0; }

std::vector<std::string> PrepareStreams(int argc, char** argv) {
  return std::vector<std::string>(argv + std::min(argc, 1), argv + argc);
}

#endif

Colours::Colours(FILE* stream) {
  if (!AllowsColours(stream)) return;
  red = "\x1b[1;31m";
  yellow = "\x1b[1;33m";
  cyan = "\x1b[36m";
  bold = "\x1b[1m";
  dim = "\x1b[2m";
  reset = "\x1b[0m";
}

std::string Printable(std::u16string_view text) {
  std::u16string printable;
  printable.reserve(text.size());
  for (const char16_t character : text) {
    if (IsBidirectionalControl(character)) {
      printable += Escaped(character);
    } else {
      printable.push_back(ToPrintable(character));
    }
  }
  return ToUtf8(printable);
}

std::string PrintableUtf8(std::string_view text) { return Printable(FromUtf8(text)); }

size_t PrintedWidth(char16_t character) {
  if (character >= 0xDC00 && character <= 0xDFFF) return 0;
  return IsBidirectionalControl(character) ? Escaped(character).size() : 1;
}

}  // namespace praxen::detail
