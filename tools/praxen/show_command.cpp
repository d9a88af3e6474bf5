// "praxen show": prints documents as outlines.
#include "tools/praxen/show_command.h"

#include <iostream>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "tools/praxen/documents.h"
#include "tools/praxen/outline.h"
#include "tools/praxen/terminal.h"

namespace praxen::detail {

namespace {

struct ShowOptions {
  std::vector<std::string> files;
  size_t depth = std::numeric_limits<size_t>::max();
};

int Show(const ShowOptions& options) {
  const Colours colours(stdout);
  return ForEachDocument(options.files, [&](const std::string& file, const Text& text) {
    const Ref<Object> object = ReadDocument(text);
    if (options.files.size() > 1) std::cout << colours.bold << file << colours.reset << '\n';
    PrintOutline(*object, options.depth, colours, std::cout);
    return true;
  });
}

}  // namespace

void AddShowCommand(CLI::App& app, int& exitCode) {
  CLI::App* const command = app.add_subcommand("show", "Print documents as outlines");
  const auto options = std::make_shared<ShowOptions>();
  command->add_option("FILE", options->files, "Documents in UTF-8 or UTF-16; - is standard input")
      ->required();
  command->add_option("--depth", options->depth, "How many levels below the first are shown");
  command->callback([&exitCode, options] { exitCode = Show(*options); });
}

}  // namespace praxen::detail
