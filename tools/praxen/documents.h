// Documents in files, and the work that commands do on them.
#ifndef PRAXEN_TOOLS_PRAXEN_DOCUMENTS_H_
#define PRAXEN_TOOLS_PRAXEN_DOCUMENTS_H_

#include <CLI/CLI.hpp>

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "praxen/core/error.h"
#include "praxen/core/losses.h"
#include "praxen/describe/object.h"
#include "tools/praxen/document_text.h"

namespace praxen::detail {

struct Document {
  /// As it was given, and as it is shown.
  std::string file, name;
  /// Whether it is the only one that the command works on.
  bool isOnly = true;
  Text text = {};
  Encoding encoding = Encoding::Utf8;
};

/// What the work on one document prints, on standard output and standard error.
struct Output {
  std::ostringstream out, err;
};

/// The work that a command does on each document. The functions may be called on several threads at
/// once, each with a document of its own.
struct DocumentWork {
  /// Returns whether all is well; may raise an `Error`.
  std::function<bool(const Document& document, Output& output)> run;
  /// Prints an error of the work, of reading the file or of its encoding; as a compiler does when
  /// it is empty.
  std::function<void(const Document& document, const Error& error, Output& output)> fail = {};
  /// How many documents are worked on at once.
  size_t jobs = 1;
};

/// Reads and decodes the files that the arguments name and works on them; prints what that gives in
/// the order of the files. Returns the exit code: 0 when all is well with all files, else 1.
int ForEachDocument(const std::vector<std::string>& arguments, const DocumentWork& work);

/// Prints one line of warning when there are losses of which the objects know nothing.
void WarnOfLosses(const Document& document, const Losses& losses, Output& output);

/// Refuses an empty name of a file.
CLI::Validator FileName();

/// Adds the option that names another schema.
void AddSchema(CLI::App& command);

/// Adds the argument that names documents, and that option.
std::shared_ptr<std::vector<std::string>> AddDocuments(CLI::App& command);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_DOCUMENTS_H_
