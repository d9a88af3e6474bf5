// "praxen sample": writes a sample document of a family.
#include "tools/praxen/sample_command.h"

#include <cerrno>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <system_error>

#include "tools/praxen/diagnostics.h"
#include "tools/praxen/document_text.h"
#include "tools/praxen/samples.h"
#include "tools/praxen/terminal.h"

namespace praxen::detail {

namespace {

struct SampleOptions {
  std::string family;
  std::string file;
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

// Throws `std::system_error` when the bytes do not arrive.
void WriteBytes(std::ostream& stream, const std::string& bytes) {
  errno = 0;
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush();
  if (!stream) throw std::system_error(errno, std::generic_category());
}

int WriteSample(const SampleOptions& options) {
  const Text text = FindSampleFamily(options.family)->build()->Serialize();
  const std::string bytes = Encode(text, options.encoding);
  try {
    if (options.file.empty()) {
      WriteBytes(std::cout, bytes);
    } else {
      std::ofstream stream(PathOf(options.file), std::ios::binary);
      WriteBytes(stream, bytes);
    }
  } catch (const std::system_error& error) {
    PrintError(options.file.empty() ? "standard output" : options.file, error.code().message());
    return 1;
  }
  return 0;
}

int Run(SampleOptions options, bool encodingGiven) {
  if (options.list) return ListFamilies();
  if (options.family.empty()) throw CLI::RequiredError("FAMILY or --list");
  if (!encodingGiven && options.file.empty() && IsTerminal(stdout)) {
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
  command->add_option("-o,--output", options->file, "The file to write instead of standard output");
  const std::map<std::string, Encoding> encodings{{"utf-8", Encoding::Utf8},
                                                  {"utf-16", Encoding::Utf16}};
  CLI::Option* const encoding =
      command
          ->add_option("--encoding", options->encoding,
                       "utf-8, or utf-16 with byte-order mark; utf-8 on a terminal, else utf-16")
          ->transform(CLI::CheckedTransformer(encodings, CLI::ignore_case).description(""));
  command->add_flag("--list", options->list, "Name the families");
  command->callback(
      [&exitCode, options, encoding] { exitCode = Run(*options, encoding->count() > 0); });
}

}  // namespace praxen::detail
