// "praxen show": prints documents as outlines.
#include "tools/praxen/show_command.h"

#include <iostream>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "praxen/factory/read_document.h"
#include "tools/praxen/documents.h"
#include "tools/praxen/json.h"
#include "tools/praxen/outline.h"
#include "tools/praxen/terminal.h"

namespace praxen::detail {

namespace {

struct ShowOptions {
  std::vector<std::string> files;
  size_t depth = std::numeric_limits<size_t>::max();
  bool json = false, all = false;
};

int ShowJson(const ShowOptions& options) {
  const JsonContent content = options.all ? JsonContent::All : JsonContent::Changed;
  return ForEachDocument(options.files, [&](const std::string&, const Text& text) {
    std::cout << JsonLine(ToJson(*ReadDocument(text), content));
    return true;
  });
}

int Show(const ShowOptions& options) {
  if (options.json) return ShowJson(options);
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
  CLI::App* const command = app.add_subcommand("show", "Print documents as outlines or as JSON");
  const auto options = std::make_shared<ShowOptions>();
  command->add_option("FILE", options->files, "Documents in UTF-8 or UTF-16; - is standard input")
      ->required();
  CLI::Option* const depth =
      command->add_option("--depth", options->depth, "How many levels below the first are shown");
  CLI::Option* const json =
      command
          ->add_flag("--json", options->json,
                     "One line of JSON for each document; \"$class\" is the class of an object, "
                     "\"$elements\" what a list holds")
          ->excludes(depth);
  command
      ->add_flag("--all", options->all, "In JSON also the properties that a new object holds alike")
      ->needs(json);
  command->callback([&exitCode, options] { exitCode = Show(*options); });
}

}  // namespace praxen::detail
