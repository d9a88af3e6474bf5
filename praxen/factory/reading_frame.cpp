// Where the schema is found, and how a text is loaded and checked.
#include "praxen/factory/reading_frame.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "praxen/core/error.h"
#include "praxen/core/module_folder.h"
#include "praxen/factory/embedded_schema.h"
#include "praxen/xml/loss_recorder.h"

namespace praxen::detail {

namespace {

constexpr std::u16string_view kNamespace = u"PraxenSchema3_0";
constexpr const char* kSchemaFile = "PraxenSchema3_0.xsd";

// The schema file, or an empty path when only the library's own copy is there.
std::filesystem::path FindSchemaFile() {
  std::error_code error;
  const std::filesystem::path beside = ModuleFolder();
  for (const auto& folder : {std::filesystem::current_path(error), beside,
                             (beside / PRAXEN_DATA_FOLDER).lexically_normal()}) {
    const std::filesystem::path file = folder / kSchemaFile;
    if (std::filesystem::is_regular_file(file, error)) return file;
  }
  return {};
}

XmlSchemaSource ReadSchema(const std::filesystem::path& file) {
  XmlSchemaSource source{std::u16string(kNamespace), std::string(EmbeddedSchema()), kSchemaFile};
  if (file.empty()) return source;
  std::ifstream stream(file, std::ios::binary);
  source.content.assign(std::istreambuf_iterator<char>(stream), {});
  source.systemId = file.string();
  return source;
}

}  // namespace

std::function<XmlSchemaSource()> FindSchema() {
  return [file = FindSchemaFile()] { return ReadSchema(file); };
}

LoadedDocument::LoadedDocument(const Text& XMLStr) : text_(XMLStr) {
  if (document_->LoadXML(text_)) return;
  const XmlParseError& error = document_->parseError();
  throw InvalidXml(error.reason, error.place);
}

LoadedDocument::LoadedDocument(const Text& XMLStr, std::u16string_view rootName)
    : LoadedDocument(XMLStr) {
  if (IsRoot(rootName)) return;
  throw WrongRootElement(root().nodeName(), Quoted(rootName)).At(root().place());
}

LoadedDocument::~LoadedDocument() { texts_.Clear(); }

void LoadedDocument::ReadRoot(Object& object, Losses* losses) const {
  if (losses == nullptr) return object.ReadXML(root());
  LossRecorder recorder(*document_);
  object.ReadXML(root());
  *losses = recorder.Find();
}

bool LoadedDocument::IsRoot(std::u16string_view name) const {
  if (root().nodeName() != name) return false;
  if (document_->rootDeclared()) return true;
  const XmlParseError error =
      MakeXmlError(u"The element \"" + std::u16string(name) + u"\" is not in the namespace \"" +
                       std::u16string(kNamespace) + u"\".",
                   root().place());
  throw InvalidXml(error.reason, error.place);
}

}  // namespace praxen::detail
