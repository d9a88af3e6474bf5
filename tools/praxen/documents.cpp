// The families of documents, and the work that commands do on files.
#include "tools/praxen/documents.h"

#include <algorithm>
#include <string_view>
#include <system_error>

#include "praxen/core/error.h"
#include "praxen/factory/classes.h"
#include "praxen/factory/object_factory.h"
#include "praxen/factory/reading_frame.h"
#include "tools/praxen/diagnostics.h"
#include "tools/praxen/document_text.h"
#include "tools/praxen/progress.h"

namespace praxen::detail {

namespace {

constexpr std::string_view kReadingPrefix = "Deserialize";

// A class that an operation returns, or, when it returns a kind, the classes of that kind.
void AppendResults(std::vector<const ClassDescription*>& classes, const ClassDescription& result) {
  if (!result.isKind) {
    classes.push_back(&result);
    return;
  }
  for (const ClassDescription& description : AllClasses()) {
    if (description.kind == &result) classes.push_back(&description);
  }
}

std::vector<const ClassDescription*> FindDocumentClasses() {
  std::vector<const ClassDescription*> classes;
  for (const Member& member : Describe<ObjectFactory>().members) {
    if (member.name.starts_with(kReadingPrefix)) AppendResults(classes, member.type.object());
  }
  return classes;
}

bool KnowsAttribute(const Layout& layout, std::u16string_view name) {
  return name.starts_with(u"xmlns") ||
         std::ranges::find(layout.attributes, name, &Attribute::name) != layout.attributes.end();
}

bool KnowsChild(const Layout& layout, std::u16string_view name) {
  return std::ranges::find(layout.children, name, &Child::name) != layout.children.end();
}

// How much the document gives that a class has no place for.
size_t CountUnknown(const Layout& layout, const XmlNode& root) {
  size_t unknown = 0;
  for (const XmlAttribute& attribute : root.attributes()) {
    if (attribute.specified && !KnowsAttribute(layout, *attribute.name)) ++unknown;
  }
  for (XmlNode child = root.firstChild(); child; child = child.nextSibling()) {
    if (!KnowsChild(layout, child.nodeName())) ++unknown;
  }
  return unknown;
}

const ClassDescription& ClassOf(const XmlNode& root) {
  std::vector<const ClassDescription*> candidates;
  for (const ClassDescription* const candidate : DocumentClasses()) {
    if (candidate->layout().element == root.nodeName()) candidates.push_back(candidate);
  }
  if (candidates.empty()) throw WrongRootElement().At(root.place());
  if (candidates.size() == 1) return *candidates.front();
  return **std::ranges::min_element(candidates, {}, [&](const ClassDescription* candidate) {
    return CountUnknown(candidate->layout(), root);
  });
}

DecodedText ReadFile(const std::string& file, Progress& progress) {
  return Decode(ReadBytes(file, progress));
}

bool IsEncoded(const std::string& file, const DecodedText& decoded) {
  if (!decoded.malformed) return true;
  const Place place = PlaceAt(decoded.text, *decoded.malformed);
  PrintError(file, InvalidXml(u"The bytes are neither UTF-8 nor UTF-16.", place), decoded.text);
  return false;
}

bool WorkOn(const std::string& file, const Text& text,
            const std::function<bool(const std::string& file, const Text& text)>& work) {
  try {
    return work(file, text);
  } catch (const Error& error) {
    PrintError(file, error, text);
    return false;
  }
}

}  // namespace

const std::vector<const ClassDescription*>& DocumentClasses() {
  static const std::vector<const ClassDescription*> classes = FindDocumentClasses();
  return classes;
}

Ref<Object> ReadDocument(const Text& text) {
  const LoadedDocument document(text);
  const ClassDescription& description = ClassOf(document.root());
  // Raises an error when the root has the right name in a wrong namespace.
  document.IsRoot(description.layout().element);
  Ref<Object> object = description.create();
  object->ReadXML(document.root());
  return object;
}

int ForEachDocument(const std::vector<std::string>& files,
                    const std::function<bool(const std::string& file, const Text& text)>& work) {
  Progress progress(files.size());
  bool good = true;
  for (const std::string& file : files) {
    try {
      const DecodedText decoded = ReadFile(file, progress);
      progress.Clear();
      good = IsEncoded(file, decoded) && WorkOn(file, decoded.text, work) && good;
    } catch (const std::system_error& error) {
      progress.Clear();
      PrintError(file, error.code().message());
      good = false;
    }
    progress.FinishFile();
  }
  return good ? 0 : 1;
}

}  // namespace praxen::detail
