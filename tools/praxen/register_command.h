// "praxen register" and "praxen unregister", which make the automation server known.
#ifndef PRAXEN_TOOLS_PRAXEN_REGISTER_COMMAND_H_
#define PRAXEN_TOOLS_PRAXEN_REGISTER_COMMAND_H_

#include <CLI/CLI.hpp>

namespace praxen::detail {

/// Adds both commands; they set `exitCode` to 1 when the registry cannot be changed.
void AddRegisterCommands(CLI::App& app, int& exitCode);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_REGISTER_COMMAND_H_
