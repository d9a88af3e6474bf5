// The command line "praxen".
#include <CLI/CLI.hpp>

#include <algorithm>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "tools/praxen/check_command.h"
#include "tools/praxen/diagnostics.h"
#include "tools/praxen/messages_command.h"
#include "tools/praxen/register_command.h"
#include "tools/praxen/sample_command.h"
#include "tools/praxen/show_command.h"
#include "tools/praxen/terminal.h"

namespace {

// What a shell expects of a program that was called the wrong way.
constexpr int kUsageError = 2;

int Run(std::vector<std::string> arguments) {
  int exitCode = 0;
  CLI::App app("Reads, checks and shows documents of the exchange format.", "praxen");
  app.set_version_flag("--version", "praxen " PRAXEN_VERSION);
  app.require_subcommand(1);
  app.get_formatter()->column_width(36);
  praxen::detail::AddSampleCommand(app, exitCode);
  praxen::detail::AddCheckCommand(app, exitCode);
  praxen::detail::AddShowCommand(app, exitCode);
  praxen::detail::AddMessagesCommand(app, exitCode);
  praxen::detail::AddRegisterCommands(app, exitCode);
  try {
    // The parser takes them from the back.
    std::ranges::reverse(arguments);
    app.parse(arguments);
  } catch (const CLI::ParseError& error) {
    exitCode = app.exit(error) == 0 ? 0 : kUsageError;
  }
  if (!std::cout.flush()) throw std::runtime_error("standard output cannot be written");
  return exitCode;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(praxen::detail::PrepareStreams(argc, argv));
  } catch (const std::exception& error) {
    praxen::detail::PrintError("praxen", error.what());
    return 1;
  }
}
