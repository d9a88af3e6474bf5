// Finding and keeping the schema.
#include "praxen/factory/schema.h"

#include <cerrno>
#include <fstream>
#include <initializer_list>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "praxen/core/error.h"
#include "praxen/core/module_folder.h"
#include "praxen/factory/embedded_schema.h"
#include "praxen/factory/reading_frame.h"
#include "praxen/xml/xml_limits.h"

namespace praxen::detail {
namespace {

constexpr const char* kSchemaFile = "PraxenSchema3_0.xsd";

Text NameOf(const std::filesystem::path& file) {
  const std::u8string name = file.u8string();
  return Text(FromUtf8({reinterpret_cast<const char*>(name.data()), name.size()}));
}

struct FileContent {
  std::string bytes;
  /// Why it could not be read; empty when it could.
  std::string cause = {};
};

FileContent ReadFile(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) {
    return {{}, error ? error.message() : "it is no file"};
  }
  const uintmax_t size = std::filesystem::file_size(file, error);
  if (error) return {{}, error.message()};
  if (size > kMaxXmlSchemaSize) {
    return {{}, "it is larger than " + std::to_string(kMaxXmlSchemaSize) + " bytes"};
  }
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return {{}, errno != 0 ? std::generic_category().message(errno) : "not readable"};
  FileContent content;
  content.bytes.resize(static_cast<size_t>(size));
  stream.read(content.bytes.data(), static_cast<std::streamsize>(content.bytes.size()));
  if (stream.bad()) return {{}, "it could not be read to its end"};
  content.bytes.resize(static_cast<size_t>(stream.gcount()));
  return content;
}

std::filesystem::path FirstWithSchema(std::initializer_list<std::filesystem::path> folders) {
  std::error_code error;
  for (const std::filesystem::path& folder : folders) {
    const std::filesystem::path file = folder / kSchemaFile;
    if (std::filesystem::is_regular_file(file, error)) return file;
  }
  return {};
}

std::filesystem::path InstalledSchema() {
  const std::filesystem::path beside = ModuleFolder();
  if (beside.empty()) return {};
  return FirstWithSchema({beside, (beside / PRAXEN_DATA_FOLDER).lexically_normal()});
}

std::filesystem::path FindSchemaFile() {
  std::error_code error;
  const std::filesystem::path file = FirstWithSchema({std::filesystem::current_path(error)});
  return file.empty() ? InstalledSchema() : file;
}

// The schema of the process: its place, which is found as the library is loaded, and its content,
// which is read once.
class Schema {
 public:
  static Schema& Shared() {
    static Schema schema;
    return schema;
  }

  void Use(std::filesystem::path file) {
    const std::lock_guard lock(mutex_);
    if (content_) throw InvalidArgument(u"The schema was read already"_text);
    file_ = std::move(file);
  }

  XmlSchemaSource Source() {
    const std::lock_guard lock(mutex_);
    XmlSchemaSource source{std::u16string(kSchemaNamespace), std::string(Read()),
                           std::u16string(Name().view())};
    if (!file_.empty())
      source.neighbour = [this](const std::u16string& name) { return Beside(name); };
    return source;
  }

  SchemaOrigin Origin() {
    const std::lock_guard lock(mutex_);
    return {file_.empty() ? Text() : NameOf(file_), IsShipped()};
  }

  bool isShipped() {
    const std::lock_guard lock(mutex_);
    return IsShipped();
  }

 private:
  Text Name() const { return file_.empty() ? Text(FromUtf8(kSchemaFile)) : NameOf(file_); }

  // What could not be read stays so.
  std::string_view Read() {
    if (!content_) content_ = file_.empty() ? FileContent() : ReadFile(file_);
    if (!content_->cause.empty()) {
      throw UnusableSchema(u"The schema '" + Name() + u"' cannot be opened: " +
                           FromUtf8(content_->cause) + u".");
    }
    return file_.empty() ? EmbeddedSchema() : std::string_view(content_->bytes);
  }

  bool IsShipped() {
    if (!isShipped_) isShipped_ = Read() == EmbeddedSchema();
    return *isShipped_;
  }

  std::optional<std::string> Beside(const std::u16string& name) {
    const std::lock_guard lock(mutex_);
    auto found = neighbours_.find(name);
    if (found == neighbours_.end()) {
      found = neighbours_.emplace(name, ReadFile(file_.parent_path() / name)).first;
    }
    const FileContent& content = found->second;
    return content.cause.empty() ? std::optional(content.bytes) : std::nullopt;
  }

  std::mutex mutex_;
  std::filesystem::path file_ = FindSchemaFile();
  std::optional<FileContent> content_;
  std::optional<bool> isShipped_;
  std::map<std::u16string, FileContent> neighbours_;
};

}  // namespace

bool IsShippedSchemaUsed() { return Schema::Shared().isShipped(); }

std::function<XmlSchemaSource()> FindSchema() {
  Schema& schema = Schema::Shared();
  return [&schema] { return schema.Source(); };
}

}  // namespace praxen::detail

namespace praxen {

using namespace detail;

SchemaOrigin CurrentSchema() { return Schema::Shared().Origin(); }

void UseSchemaFile(const std::filesystem::path& file) {
  std::error_code error;
  const std::filesystem::path absolute = std::filesystem::absolute(file, error);
  Schema::Shared().Use(error ? file : absolute);
}

void UseInstalledSchema() { Schema::Shared().Use(InstalledSchema()); }

}  // namespace praxen
