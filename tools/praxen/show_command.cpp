// "praxen show": prints documents as outlines.
#include "tools/praxen/show_command.h"

#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "praxen/factory/read_document.h"
#include "tools/praxen/diagnostics.h"
#include "tools/praxen/documents.h"
#include "tools/praxen/json.h"
#include "tools/praxen/outline.h"
#include "tools/praxen/terminal.h"

namespace praxen::detail {

namespace {

struct ShowOptions {
  std::shared_ptr<std::vector<std::string>> files;
  size_t depth = std::numeric_limits<size_t>::max();
  bool json = false, all = false;
};

void PrintJson(const Document& document, nlohmann::ordered_json content, Output& output) {
  nlohmann::ordered_json json{{kJsonFile, document.file}};
  for (auto& [name, value] : content.get_ref<nlohmann::ordered_json::object_t&>()) {
    json[name] = std::move(value);
  }
  output.out << JsonLine(json);
}

int Show(const ShowOptions& options) {
  const Colours colours(stdout);
  const JsonContent content = options.all ? JsonContent::All : JsonContent::Changed;
  DocumentWork work;
  work.run = [&](const Document& document, Output& output) {
    Losses losses;
    const Ref<Object> object = ReadDocument(document.text, &losses);
    WarnOfLosses(document, losses, output);
    if (options.json) {
      PrintJson(document, ToJson(*object, content), output);
      return true;
    }
    if (!document.isOnly) output.out << colours.bold << document.name << colours.reset << '\n';
    PrintOutline(*object, options.depth, colours, output.out);
    return true;
  };
  if (options.json) {
    work.fail = [](const Document& document, const Error& error, Output& output) {
      const std::string sentence = ToUtf8(SentenceOf(error));
      PrintJson(document, {{kJsonError, DiagnosticJson(Severity::Error, error.place(), sentence)}},
                output);
    };
  }
  return ForEachDocument(*options.files, work);
}

}  // namespace

void AddShowCommand(CLI::App& app, int& exitCode) {
  CLI::App* const command = app.add_subcommand("show", "Print documents as outlines or as JSON");
  const auto options = std::make_shared<ShowOptions>();
  options->files = AddDocuments(*command);
  CLI::Option* const depth =
      command->add_option("--depth", options->depth, "How many levels below the first are shown")
          ->check(CLI::Range(0, std::numeric_limits<int>::max()).description(""))
          ->type_name("N");
  CLI::Option* const json =
      command
          ->add_flag("--json", options->json,
                     "One line of JSON for each document; \"$file\" is its name, \"$error\" why it "
                     "cannot be read, \"$class\" the class of an object, \"$elements\" what a list "
                     "holds")
          ->excludes(depth);
  command
      ->add_flag("--all", options->all, "In JSON also the properties that a new object holds alike")
      ->needs(json);
  command->footer(
      "Exit code: 0 when all documents are shown, 1 when one cannot be read, 2 for wrong use.\n\n"
      "Examples:\n"
      "  praxen show --depth 1 program.xml\n"
      "  praxen show --json exports/ > exports.json");
  command->callback([&exitCode, options] { exitCode = Show(*options); });
}

}  // namespace praxen::detail
