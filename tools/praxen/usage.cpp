// Unknown commands and options, and the nearest that there are.
#include "tools/praxen/usage.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <numeric>
#include <utility>

#include "praxen/core/ascii.h"
#include "tools/praxen/diagnostics.h"
#include "tools/praxen/terminal.h"

namespace praxen::detail {

namespace {

// How many characters have to be added, taken away or changed between the two.
size_t Distance(std::string_view a, std::string_view b) {
  std::vector<size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), size_t{0});
  for (size_t i = 0; i < a.size(); ++i) {
    size_t diagonal = row[0];
    row[0] = i + 1;
    for (size_t j = 0; j < b.size(); ++j) {
      const size_t changed = diagonal + (a[i] == b[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
    }
  }
  return row.back();
}

std::vector<std::string> CommandsOf(const CLI::App& app) {
  std::vector<std::string> names;
  for (const CLI::App* const command : app.get_subcommands({}))
    names.push_back(command->get_name());
  return names;
}

const CLI::App* FindCommand(const CLI::App& app, const std::string& name) {
  const auto commands =
      app.get_subcommands([&](const CLI::App* command) { return command->get_name() == name; });
  return commands.empty() ? nullptr : commands.front();
}

std::vector<std::string> OptionsOf(const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::Option* const option : command.get_options()) {
    for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
  }
  return names;
}

std::string Unknown(const std::string& what, std::string_view name,
                    const std::vector<std::string>& names) {
  constexpr size_t kShown = 60;
  const std::string shown(name.substr(0, kShown));
  const std::string_view near = Nearest(shown, names);
  return "there is no " + what + " \"" + shown + '"' +
         (near.empty() ? "" : "; did you mean \"" + std::string(near) + "\"?");
}

bool IsOption(std::string_view argument) { return argument.size() > 1 && argument[0] == '-'; }

bool IsNumber(std::string_view argument) { return IsOption(argument) && IsDigitAscii(argument[1]); }

// An argument such as --depth=2, -j4 or -ab names its options by its start.
const CLI::Option* FindOption(const CLI::App& command, const std::string& argument) {
  const bool isLong = argument.starts_with("--");
  return command.get_option_no_throw(isLong ? argument.substr(0, argument.find('='))
                                            : argument.substr(0, 2));
}

// Whether the value of the option is the argument that follows.
bool TakesNext(const CLI::Option* option, const std::string& argument) {
  const bool isLong = argument.starts_with("--");
  const bool hasValue = isLong ? argument.find('=') != std::string::npos : argument.size() > 2;
  return option != nullptr && option->get_items_expected_max() > 0 && !hasValue;
}

std::string UnknownOption(const CLI::App& app, const CLI::App& command,
                          const std::string& argument) {
  const auto takers = app.get_subcommands(
      [&](const CLI::App* each) { return FindOption(*each, argument) != nullptr; });
  if (&command != &app || takers.empty()) {
    return Unknown("option", argument, OptionsOf(command));
  }
  return "the option \"" + argument + "\" follows the command, such as \"" +
         takers.front()->get_name() + '"';
}

void Help(const CLI::App& app, const std::string& command, int& exitCode) {
  if (command.empty()) {
    // Asked itself, the app would tell of the command that is running.
    std::cout << app.get_formatter()->make_help(&app, app.get_name(), CLI::AppFormatMode::Normal);
    return;
  }
  if (const CLI::App* const found = FindCommand(app, command)) {
    std::cout << found->help(app.get_name());
    return;
  }
  PrintError("praxen", PrintableUtf8(Unknown("command", command, CommandsOf(app))));
  exitCode = 2;
}

}  // namespace

std::string_view Nearest(std::string_view name, const std::vector<std::string>& names) {
  const auto distance = [&](const std::string& each) { return Distance(name, each); };
  const std::string& nearest = *std::ranges::min_element(names, {}, distance);
  const size_t dashes = std::min(name.find_first_not_of('-'), name.size());
  const size_t most = (name.size() - dashes + 2) / 3;
  return distance(nearest) <= most ? std::string_view(nearest) : std::string_view();
}

std::string FindUnknown(const CLI::App& app, const std::vector<std::string>& arguments) {
  const CLI::App* command = &app;
  bool isValue = false;
  for (const std::string& argument : arguments) {
    if (argument == "--") return {};
    const bool mayBeValue = std::exchange(isValue, false);
    if (mayBeValue && IsNumber(argument)) continue;
    if (IsOption(argument)) {
      const CLI::Option* const option = FindOption(*command, argument);
      if (option == nullptr) return UnknownOption(app, *command, argument);
      isValue = TakesNext(option, argument);
    } else if (command == &app) {
      command = FindCommand(app, argument);
      if (command == nullptr) return Unknown("command", argument, CommandsOf(app));
    }
  }
  return {};
}

void AddHelpCommand(CLI::App& app, int& exitCode) {
  CLI::App* const command = app.add_subcommand("help", "Print what a command does");
  const auto name = std::make_shared<std::string>();
  command->add_option("COMMAND", *name, "The command; without one, all are listed");
  command->footer(
      "Exit code: 0, 2 when there is no such command.\n\nExample:\n  praxen help check");
  command->callback([&app, &exitCode, name] { Help(app, *name, exitCode); });
}

}  // namespace praxen::detail
