// "praxen check": reads, writes again and compares.
#include "tools/praxen/check_command.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "praxen/core/error.h"
#include "praxen/describe/reflection.h"
#include "praxen/factory/read_document.h"
#include "tools/praxen/diagnostics.h"
#include "tools/praxen/documents.h"
#include "tools/praxen/terminal.h"

namespace praxen::detail {

namespace {

Text Write(const Ref<Object>& object) {
  return RequireClass<SerializableObject>(object)->Serialize();
}

// What is written of a document may differ from it, but has to read and write as itself.
bool KeepsItsText(const std::string& file, const Text& written) {
  const Text again = Write(ReadDocument(written));
  if (again == written) return true;
  const auto [difference, other] = std::ranges::mismatch(written.view(), again.view());
  const auto offset = static_cast<size_t>(difference - written.view().begin());
  const Place place = PlaceAt(written, offset);
  PrintError(file, "what was written of it changes when it is read and written again");
  std::cerr << SourceLines(written, place) << std::flush;
  return false;
}

std::string Counted(size_t count, const std::string& noun) {
  return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

size_t CountObjects(Object& object);

size_t CountBelow(Object& object) {
  size_t count = 0;
  for (const Child& child : ChildrenOf(object.description())) {
    Object* const held = Held(object, child);
    if (held == nullptr) continue;
    count += held->elements() == nullptr ? CountObjects(*held) : CountBelow(*held);
  }
  for (const Ref<Object>& element : ElementsOf(object)) count += CountObjects(*element);
  return count;
}

// Lists inside of others are not counted: they are there whether or not a document has them.
size_t CountObjects(Object& object) { return 1 + CountBelow(object); }

bool Check(const std::string& file, const Text& text) {
  const Ref<Object> object = ReadDocument(text);
  if (!KeepsItsText(file, Write(object))) return false;
  const Colours colours(stdout);
  std::cout << file << ": ok (" << Printable(object->description().layout().element) << ", "
            << Counted(CountObjects(*object), "object") << ", " << Counted(text.size(), "character")
            << ")\n";
  return true;
}

}  // namespace

void AddCheckCommand(CLI::App& app, int& exitCode) {
  CLI::App* const command = app.add_subcommand(
      "check", "Validate documents, and tell whether what is read survives writing and reading");
  const auto files = std::make_shared<std::vector<std::string>>();
  command->add_option("FILE", *files, "Documents in UTF-8 or UTF-16; - is standard input")
      ->required();
  command->callback([&exitCode, files] { exitCode = ForEachDocument(*files, Check); });
}

}  // namespace praxen::detail
