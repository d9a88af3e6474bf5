// "praxen messages", which prints a message list the way a compiler would.
#ifndef PRAXEN_TOOLS_PRAXEN_MESSAGES_COMMAND_H_
#define PRAXEN_TOOLS_PRAXEN_MESSAGES_COMMAND_H_

#include <CLI/CLI.hpp>

namespace praxen::detail {

/// Adds the command; it sets `exitCode` to 1 when there are errors.
void AddMessagesCommand(CLI::App& app, int& exitCode);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_MESSAGES_COMMAND_H_
