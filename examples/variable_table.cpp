// Prints the variables of all programs in a folder of documents as a table for a spreadsheet:
// "variable_table FOLDER >variables.csv"; without a folder, the current one.
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

#include "praxen/praxen.h"

namespace {

// A field as RFC 4180 quotes it.
std::string Field(const praxen::Text& text) {
  std::string field = "\"";
  for (const char c : text.utf8()) field += c == '"' ? "\"\"" : std::string(1, c);
  return field + '"';
}

void PrintVariables(const std::filesystem::path& file) {
  const auto document = praxen::ReadDocument(praxen::LoadDocument(file));
  const auto program = document.As<praxen::Program>();
  if (!program) return;
  for (const auto& variable : *program->Variables) {
    std::cout << Field(file.filename().string()) << ',' << Field(program->Name) << ','
              << Field(variable.Name) << ',' << Field(variable.TypeName) << ','
              << Field(variable.InitialValue) << ',' << Field(variable.Description) << '\n';
  }
}

}  // namespace

int main(int argc, char** argv) {
  int result = EXIT_SUCCESS;
  std::cout << "File,Program,Variable,Type,Initial value,Description\n";
  for (const auto& entry :
       std::filesystem::recursive_directory_iterator(argc > 1 ? argv[1] : ".")) {
    if (entry.path().extension() != ".xml") continue;
    try {
      PrintVariables(entry.path());
    } catch (const std::exception& error) {
      std::cerr << entry.path().string() << ": " << error.what() << '\n';
      result = EXIT_FAILURE;
    }
  }
  return result;
}
