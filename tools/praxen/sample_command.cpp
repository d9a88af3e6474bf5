// "praxen sample": writes a sample document of a family.
#include "tools/praxen/sample_command.h"

#include <iostream>
#include <memory>
#include <string>

#include "praxen/core/error.h"
#include "tools/praxen/diagnostics.h"
#include "tools/praxen/documents.h"
#include "tools/praxen/encoding_option.h"
#include "tools/praxen/samples.h"
#include "tools/praxen/terminal.h"

namespace praxen::detail {

namespace {

struct SampleOptions {
  std::string family;
  std::string file = "-";
  Encoding encoding = Encoding::Utf16;
  bool list = false;
};

int ListFamilies() {
  for (const SampleFamily& family : SampleFamilies()) std::cout << family.name << '\n';
  return 0;
}

std::string FamilyNames() {
  std::string names;
  for (const SampleFamily& family : SampleFamilies()) {
    names.append(names.empty() ? "" : ", ").append(family.name);
  }
  return names;
}

std::string RequireFamily(const std::string& name) {
  if (FindSampleFamily(name) != nullptr) return {};
  return "there is no family \"" + name + "\"; the families are " + FamilyNames();
}

int WriteSample(const SampleOptions& options) {
  const Text text = FindSampleFamily(options.family)->build()->Serialize();
  try {
    WriteDocument(options.file, text, options.encoding);
  } catch (const Error& error) {
    PrintError(options.file == "-" ? "standard output" : PrintableUtf8(options.file),
               Printable(error.description()));
    return 1;
  }
  return 0;
}

int Run(SampleOptions options, bool encodingGiven) {
  if (options.list) return ListFamilies();
  if (options.family.empty()) throw CLI::RequiredError("FAMILY or --list");
  if (!encodingGiven && options.file == "-" && IsTerminal(stdout)) {
    options.encoding = Encoding::Utf8;
  }
  return WriteSample(options);
}

}  // namespace

void AddSampleCommand(CLI::App& app, int& exitCode) {
  CLI::App* const command = app.add_subcommand("sample", "Write a sample document of a family");
  const auto options = std::make_shared<SampleOptions>();
  command->add_option("FAMILY", options->family, "The family; --list names them")
      ->check(CLI::Validator(RequireFamily, ""));
  command->add_option("-o,--output", options->file, "The file to write instead of standard output")
      ->check(FileName());
  CLI::Option* const encoding =
      AddEncoding(*command, options->encoding,
                  "utf-8, or utf-16 with byte-order mark; utf-8 on a terminal, else utf-16");
  command->add_flag("--list", options->list, "Name the families");
  command->footer(
      "Exit code: 0, 1 when the document cannot be written, 2 for wrong use.\n\n"
      "Examples:\n"
      "  praxen sample --list\n"
      "  praxen sample program --encoding utf-8 -o program.xml");
  command->callback(
      [&exitCode, options, encoding] { exitCode = Run(*options, encoding->count() > 0); });
}

}  // namespace praxen::detail
