// Documents of filled objects and of samples.
#include "tests/support/sound_documents.h"

#include "praxen/factory/direct_reading.h"
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
  const ClassDescription* const description = &object.description();
  documents.push_back({name, description, serializable.Serialize()});
  documents.push_back({name + " with LF", description, FromUtf8(ExampleDocument(object))});
  SetIncludeCRLFInXML(false);
  documents.push_back({name + " without line breaks", description, serializable.Serialize()});
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
    const Ref<SerializableObject> sample = family.build();
    documents.push_back(
        {"sample " + std::string(family.name), &sample->description(), sample->Serialize()});
  }
  return documents;
}

bool IsReadDirectly(const SoundDocument& document) {
  const auto create = [](std::u16string_view, const void* description) {
    return static_cast<const ClassDescription*>(description)->create();
  };
  return static_cast<bool>(ReadDirectly(document.text, create, document.description));
}

}  // namespace praxen::detail
