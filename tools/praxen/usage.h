// What is said of arguments that the program does not know.
#ifndef PRAXEN_TOOLS_PRAXEN_USAGE_H_
#define PRAXEN_TOOLS_PRAXEN_USAGE_H_

#include <CLI/CLI.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace praxen::detail {

/// Adds "help [COMMAND]".
void AddHelpCommand(CLI::App& app, int& exitCode);

/// What is wrong with the first argument that names no command and no option of the command, with
/// the nearest that there is; empty when all are known.
std::string FindUnknown(const CLI::App& app, const std::vector<std::string>& arguments);

/// The name that takes the fewest changes of characters to become, one for each three characters
/// begun at most; empty when none is so near. There are names.
std::string_view Nearest(std::string_view name, const std::vector<std::string>& names);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_USAGE_H_
