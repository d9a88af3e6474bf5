// Files as documents, one after the other or several at once.
#include "tools/praxen/documents.h"

#include <algorithm>
#include <atomic>
#include <future>
#include <system_error>
#include <thread>

#include "praxen/factory/schema.h"
#include "tools/praxen/diagnostics.h"
#include "tools/praxen/files.h"
#include "tools/praxen/losses.h"
#include "tools/praxen/progress.h"
#include "tools/praxen/terminal.h"

namespace praxen::detail {

namespace {

struct Result {
  bool good = false;
  std::string out, err;
};

void Fail(const Document& document, const Error& error, const DocumentWork& work, Output& output) {
  if (work.fail) return work.fail(document, error, output);
  PrintError(output.err, document.name, error, document.text);
}

void ReadFile(const NamedFile& file, Document& document, Progress& progress) {
  if (!file.fault.empty()) throw Error(0, {}, FromUtf8(file.fault));
  const DecodedDocument decoded = DecodeDocument(ReadBytes(file.name, progress));
  document.text = decoded.text;
  document.encoding = decoded.encoding;
  if (!decoded.malformed) return;
  throw InvalidXml(u"The bytes are neither UTF-8 nor UTF-16.",
                   PlaceAt(decoded.text, *decoded.malformed));
}

Result WorkOn(const NamedFile& file, bool isOnly, const DocumentWork& work, Progress& progress) {
  Document document{file.name, PrintableUtf8(file.name), isOnly};
  Output output;
  bool good = false;
  try {
    ReadFile(file, document, progress);
    progress.StartObjects(document.name);
    good = work.run(document, output);
  } catch (const Error& error) {
    Fail(document, error, work, output);
  } catch (const std::system_error& error) {
    Fail(document, Error(0, {}, FromUtf8(error.code().message())), work, output);
  }
  return {good, output.out.str(), output.err.str()};
}

// Works on the files with several threads.
class Workers {
 public:
  Workers(const std::vector<NamedFile>& files, const DocumentWork& work, Progress& progress)
      : files_(files), work_(work), progress_(progress), results_(files.size()) {
    for (size_t i = 0; i < std::min(work.jobs, files.size()); ++i) {
      threads_.emplace_back([this] { Work(); });
    }
  }
  ~Workers() {
    next_ = files_.size();
    for (std::thread& thread : threads_) thread.join();
  }
  Workers(const Workers&) = delete;
  Workers& operator=(const Workers&) = delete;

  Result Take(size_t file) { return results_[file].get_future().get(); }

 private:
  void Work() {
    for (size_t file; (file = next_++) < files_.size();) {
      try {
        results_[file].set_value(WorkOn(files_[file], false, work_, progress_));
      } catch (...) {
        results_[file].set_exception(std::current_exception());
      }
    }
  }

  const std::vector<NamedFile>& files_;
  const DocumentWork& work_;
  Progress& progress_;
  std::vector<std::promise<Result>> results_;
  std::atomic<size_t> next_ = 0;
  std::vector<std::thread> threads_;
};

}  // namespace

int ForEachDocument(const std::vector<std::string>& arguments, const DocumentWork& work) {
  const std::vector<NamedFile> files = FindFiles(arguments);
  Progress progress(files.size());
  const bool atOnce = work.jobs > 1 && files.size() > 1;
  const std::unique_ptr<Workers> workers =
      atOnce ? std::make_unique<Workers>(files, work, progress) : nullptr;
  bool good = true;
  for (size_t i = 0; i < files.size(); ++i) {
    const Result result =
        atOnce ? workers->Take(i) : WorkOn(files[i], files.size() == 1, work, progress);
    progress.FinishFile(result.out, result.err);
    good = result.good && good;
  }
  return good ? 0 : 1;
}

void WarnOfLosses(const Document& document, const Losses& losses, Output& output) {
  const size_t count = LossesInObjects(losses).size();
  if (count == 0) return;
  PrintHead(output.err, Severity::Warning, document.name, {},
            "not all of the document was read (" + std::to_string(count) +
                (count == 1 ? " loss" : " losses") + "; see praxen check)");
}

CLI::Validator FileName() {
  return {[](const std::string& name) { return name.empty() ? "the name \"\" is empty" : ""; }, ""};
}

void AddSchema(CLI::App& command) {
  command
      .add_option_function<std::string>(
          "--schema", [](const std::string& file) { UseSchemaFile(PathOf(file)); },
          "Validate against this schema instead of the installed one")
      ->check(FileName())
      ->type_name("FILE");
}

std::shared_ptr<std::vector<std::string>> AddDocuments(CLI::App& command) {
  AddSchema(command);
  auto files = std::make_shared<std::vector<std::string>>();
  command
      .add_option("FILE", *files,
                  "Documents in UTF-8 or UTF-16, or folders of them; - is standard input")
      ->check(FileName())
      ->required();
  return files;
}

}  // namespace praxen::detail
