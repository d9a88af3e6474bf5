// Documents of filled objects and of samples.
#include "tests/support/sound_documents.h"

#include "praxen/factory/read_document.h"
#include "praxen/xml/xml_string_writer.h"
#include "tests/support/example.h"
#include "tools/praxen/samples.h"

namespace praxen::detail {

namespace {

// Deep enough for a property of every class that the document can contain.
constexpr int kDepth = 2;

void AddForms(std::vector<SoundDocument>& documents, const std::string& name, Object& object) {
  auto& serializable = dynamic_cast<SerializableObject&>(object);
  documents.push_back({name, serializable.Serialize()});
  documents.push_back({name + " with LF", FromUtf8(ExampleDocument(object))});
  SetIncludeCRLFInXML(false);
  documents.push_back({name + " without line breaks", serializable.Serialize()});
  SetIncludeCRLFInXML(true);
}

}  // namespace

std::vector<SoundDocument> SoundDocuments() {
  std::vector<SoundDocument> documents;
  for (const ClassDescription* const description : DocumentClasses()) {
    const std::string name(description->name);
    const Ref<Object> full = description->create(), bare = description->create();
    FillExample(*full, kDepth);
    AddForms(documents, name, *full);
    FillRequired(*bare);
    AddForms(documents, "bare " + name, *bare);
  }
  for (const SampleFamily& family : SampleFamilies()) {
    documents.push_back({"sample " + std::string(family.name), family.build()->Serialize()});
  }
  return documents;
}

}  // namespace praxen::detail
