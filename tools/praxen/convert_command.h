// "praxen convert", which writes documents anew as the library writes them.
#ifndef PRAXEN_TOOLS_PRAXEN_CONVERT_COMMAND_H_
#define PRAXEN_TOOLS_PRAXEN_CONVERT_COMMAND_H_

#include <CLI/CLI.hpp>

namespace praxen::detail {

/// Adds the command; it sets `exitCode` to 1 when a document is not converted.
void AddConvertCommand(CLI::App& app, int& exitCode);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_CONVERT_COMMAND_H_
