// "praxen check": reads and tells what that or writing leaves out, writes again and compares.
#include "tools/praxen/check_command.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "praxen/core/ascii.h"
#include "praxen/core/error.h"
#include "praxen/describe/reflection.h"
#include "praxen/factory/read_document.h"
#include "praxen/factory/schema.h"
#include "tools/praxen/diagnostics.h"
#include "tools/praxen/documents.h"
#include "tools/praxen/json.h"
#include "tools/praxen/losses.h"
#include "tools/praxen/terminal.h"

namespace praxen::detail {

namespace {

using namespace std::string_view_literals;

struct CheckOptions {
  std::shared_ptr<std::vector<std::string>> files;
  size_t jobs = std::max(std::thread::hardware_concurrency(), 1U);
  bool lossy = false, json = false;
};

// What there is to say of a document.
struct Finding {
  Severity severity;
  Place place;
  std::string sentence;
};

struct Findings {
  std::vector<Finding> all = {};
  std::string element = {};
  size_t objects = 0;
  /// Whether something is lost or wrong.
  bool lossy = false, wrong = false;
};

Text Write(const Ref<Object>& object) {
  return RequireClass<SerializableObject>(object)->Serialize();
}

// What is written of a document may differ from it, but has to read and write as itself.
void CheckRewriting(const Ref<Object>& object, Findings& findings) {
  const Text written = Write(object);
  const Text again = Write(ReadDocument(written));
  if (again == written) return;
  const auto [difference, other] = std::ranges::mismatch(written.view(), again.view());
  const auto offset = static_cast<size_t>(difference - written.view().begin());
  std::string line = SourceLines(written).At(PlaceAt(written, offset));
  line.pop_back();
  findings.wrong = true;
  findings.all.push_back(
      {Severity::Error,
       {},
       "what was written of it changes when it is read and written again\n" + std::move(line)});
}

// UTF-16 may be declared with its byte order.
bool Declares(std::u16string_view name, Encoding encoding) {
  if (EqualsIgnoringCase(name, NameOf(encoding))) return true;
  return encoding == Encoding::Utf16 &&
         (EqualsIgnoringCase(name, u"UTF-16LE"sv) || EqualsIgnoringCase(name, u"UTF-16BE"sv));
}

// The encoding that the bytes have is read whatever is declared, but not by every program.
void CheckEncoding(const Document& document, Findings& findings) {
  const DeclaredEncoding declared = FindDeclaredEncoding(document.text);
  const std::u16string_view actual = NameOf(document.encoding);
  if (declared.name.empty() || Declares(declared.name, document.encoding)) return;
  findings.all.push_back(
      {Severity::Warning, PlaceAt(document.text, declared.offset),
       "the document declares " + Printable(declared.name) + " but is in " + Printable(actual)});
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

Findings Check(const Document& document) {
  Findings findings;
  CheckEncoding(document, findings);
  Losses losses;
  const Ref<Object> object = ReadDocument(document.text, &losses);
  for (const Loss& loss : LossesOfContent(std::move(losses))) {
    findings.lossy = true;
    findings.all.push_back({Severity::Warning, loss.place, Printable(loss.description)});
  }
  findings.element = Printable(object->description().layout().element);
  findings.objects = CountObjects(*object);
  CheckRewriting(object, findings);
  return findings;
}

void Print(const Document& document, const Findings& findings, bool good, Output& output) {
  SourceLines lines(document.text);
  for (const Finding& finding : findings.all) {
    PrintHead(output.err, finding.severity, document.name, finding.place, finding.sentence);
    if (finding.place.line != 0) output.err << lines.At(finding.place);
  }
  if (!good) return;
  output.out << document.name << ": ok (" << findings.element << ", "
             << Counted(findings.objects, "object") << ", "
             << Counted(document.text.size(), "character") << ")\n";
}

void PrintJson(const Document& document, const Findings& findings, bool good, Output& output) {
  nlohmann::ordered_json json{{"file", document.file}, {"ok", good}};
  if (!findings.element.empty()) {
    json["element"] = findings.element;
    json["objects"] = findings.objects;
    json["characters"] = document.text.size();
  }
  json["findings"] = nlohmann::ordered_json::array();
  for (const Finding& finding : findings.all) {
    json["findings"].push_back(DiagnosticJson(finding.severity, finding.place, finding.sentence));
  }
  output.out << JsonLine(json);
}

void TellSchema() {
  const SchemaOrigin schema = CurrentSchema();
  if (schema.isShipped) return;
  PrintHead(std::cerr, Severity::Note, "praxen", {},
            "documents are validated against " + Printable(schema.file) +
                ", which is not the schema of this version");
}

int Run(const CheckOptions& options) {
  TellSchema();
  const auto print = options.json ? &PrintJson : &Print;
  DocumentWork work;
  work.run = [&](const Document& document, Output& output) {
    const Findings findings = Check(document);
    const bool good = !findings.wrong && (options.lossy || !findings.lossy);
    print(document, findings, good, output);
    return good;
  };
  if (options.json) {
    work.fail = [](const Document& document, const Error& error, Output& output) {
      const Finding finding{Severity::Error, error.place(), ToUtf8(SentenceOf(error))};
      PrintJson(document, {.all = {finding}}, false, output);
    };
  }
  work.jobs = options.jobs;
  return ForEachDocument(*options.files, work);
}

}  // namespace

void AddCheckCommand(CLI::App& app, int& exitCode) {
  CLI::App* const command = app.add_subcommand("check",
                                               "Validate documents, and tell what of them is not "
                                               "read, or not written again");
  const auto options = std::make_shared<CheckOptions>();
  options->files = AddDocuments(*command);
  command->add_flag("--lossy", options->lossy, "Tell what is lost, but accept it");
  command->add_option("-j,--jobs", options->jobs, "How many documents are checked at once")
      ->check(CLI::Range(1, 1024))
      ->type_name("N");
  command->add_flag("--json", options->json, "One line of JSON for each document");
  command->footer(
      "Told are errors; what is not read, or read as something else; what is read and not written\n"
      "again, such as a constant whose name another has; and an encoding other than the\n"
      "declared one. Not told are comments, and attributes that are only read, such as TypeGuid.\n"
      "Of a document that ends with an error, only the error is told.\n\n"
      "Exit code: 0 when all documents are good, 1 when one is not or something of it is lost,\n"
      "2 for wrong use.\n\n"
      "Examples:\n"
      "  praxen check program.xml\n"
      "  praxen check --lossy -j 4 exports/");
  command->callback([&exitCode, options] { exitCode = Run(*options); });
}

}  // namespace praxen::detail
