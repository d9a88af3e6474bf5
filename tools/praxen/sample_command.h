// "praxen sample", which writes a sample document of a family.
#ifndef PRAXEN_TOOLS_PRAXEN_SAMPLE_COMMAND_H_
#define PRAXEN_TOOLS_PRAXEN_SAMPLE_COMMAND_H_

#include <CLI/CLI.hpp>

namespace praxen::detail {

/// Adds the command; it sets `exitCode` to 1 when the document cannot be written.
void AddSampleCommand(CLI::App& app, int& exitCode);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_SAMPLE_COMMAND_H_
