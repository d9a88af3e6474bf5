// The command line "praxen".
#include <CLI/CLI.hpp>

#include <algorithm>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "praxen/factory/schema.h"
#include "tools/praxen/check_command.h"
#include "tools/praxen/convert_command.h"
#include "tools/praxen/diagnostics.h"
#include "tools/praxen/messages_command.h"
#include "tools/praxen/register_command.h"
#include "tools/praxen/sample_command.h"
#include "tools/praxen/show_command.h"
#include "tools/praxen/terminal.h"
#include "tools/praxen/usage.h"

namespace {

// What a shell expects of a program that was called the wrong way.
constexpr int kUsageError = 2;

// Arguments that are quoted in it must not steer the terminal.
std::string FailureMessage(const CLI::App*, const CLI::Error& error) {
  return praxen::detail::PrintableUtf8(error.what()) + "\nRun with --help for more information.\n";
}

std::string VersionText() {
  const praxen::SchemaOrigin schema = praxen::CurrentSchema();
  const std::string version = "praxen " PRAXEN_VERSION;
  if (schema.isShipped) return version;
  return version + "\nschema " + praxen::detail::Printable(schema.file) +
         ", which is not that of this version";
}

int Run(std::vector<std::string> arguments) {
  int exitCode = 0;
  // What lies in the current folder is not trusted unless it is asked for.
  praxen::UseInstalledSchema();
  CLI::App app("Reads, checks and shows documents of the exchange format.", "praxen");
  app.set_version_flag("--version", VersionText);
  app.require_subcommand(1);
  app.get_formatter()->column_width(36);
  praxen::detail::AddSampleCommand(app, exitCode);
  praxen::detail::AddCheckCommand(app, exitCode);
  praxen::detail::AddConvertCommand(app, exitCode);
  praxen::detail::AddShowCommand(app, exitCode);
  praxen::detail::AddMessagesCommand(app, exitCode);
  praxen::detail::AddRegisterCommands(app, exitCode);
  praxen::detail::AddHelpCommand(app, exitCode);
  for (const auto* const name : {"register", "unregister"}) {
    app.get_subcommand(name)->footer(
        std::string("Exit code: 0, 1 when the registry cannot be changed, 2 for wrong use.\n\n"
                    "Example:\n  praxen ") +
        name);
  }
  app.footer(
      "Exit code: 0 when all is well, 1 when a document or file is not, 2 for wrong use.\n\n"
      "Examples:\n"
      "  praxen sample program -o program.xml\n"
      "  praxen check program.xml");
  app.failure_message(FailureMessage);
  if (const std::string unknown = praxen::detail::FindUnknown(app, arguments); !unknown.empty()) {
    praxen::detail::PrintError("praxen", praxen::detail::PrintableUtf8(unknown));
    return kUsageError;
  }
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
    praxen::detail::PrintError("praxen", praxen::detail::PrintableUtf8(error.what()));
    return 1;
  }
}
