// "praxen show", which prints documents as outlines or as JSON.
#ifndef PRAXEN_TOOLS_PRAXEN_SHOW_COMMAND_H_
#define PRAXEN_TOOLS_PRAXEN_SHOW_COMMAND_H_

#include <CLI/CLI.hpp>

namespace praxen::detail {

/// Adds the command; it sets `exitCode` to 1 when a file is not a good document.
void AddShowCommand(CLI::App& app, int& exitCode);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_SHOW_COMMAND_H_
