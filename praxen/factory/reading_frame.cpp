// How a text is loaded and checked.
#include "praxen/factory/reading_frame.h"

#include <string>

#include "praxen/core/error.h"
#include "praxen/core/thread_state.h"
#include "praxen/xml/loss_recorder.h"

namespace praxen::detail {

namespace {

// Some more than objects take.
constexpr size_t kObjectBytesPerCharacter = 3;

// Faults in the use of memory are found only where each object has its own.
#ifdef __SANITIZE_ADDRESS__
constexpr bool kUsesRegions = false;
#elif defined(__has_feature)
constexpr bool kUsesRegions = !__has_feature(address_sanitizer);
#else
constexpr bool kUsesRegions = true;
#endif

XmlParseError AtRoot(const XmlNode& root, std::u16string_view what) {
  return MakeXmlError(u"The element \"" + std::u16string(root.nodeName()) + u"\" is not " +
                          std::u16string(what) + u".",
                      root.place());
}

bool IsInNamespace(const XmlNode& root) {
  const XmlAttribute* const declaration = root.attribute(u"xmlns");
  return declaration != nullptr && declaration->value() == kSchemaNamespace;
}

}  // namespace

DocumentInReading::DocumentInReading(size_t characters)
    : region_(kObjectBytesPerCharacter * characters) {
  if (kUsesRegions) ThreadState::Current().region = &region_;
}

DocumentInReading::~DocumentInReading() {
  ThreadState::Current().region = nullptr;
  values_.Clear();
}

LoadedDocument::LoadedDocument(const Text& XMLStr) : text_(XMLStr) {
  if (document_->LoadXML(text_)) return;
  const XmlParseError& error = document_->parseError();
  throw error.isOfSchema ? UnusableSchema(error.reason) : InvalidXml(error.reason, error.place);
}

LoadedDocument::LoadedDocument(const Text& XMLStr, std::u16string_view rootName)
    : LoadedDocument(XMLStr) {
  if (IsRoot(rootName)) return;
  throw WrongRootElement(root().nodeName(), Quoted(rootName)).At(root().place());
}

void LoadedDocument::ReadRoot(Object& object, Losses* losses) const {
  if (losses == nullptr) return object.ReadXML(root());
  LossRecorder recorder(*document_);
  object.ReadXML(root());
  *losses = recorder.Find();
}

bool LoadedDocument::IsRoot(std::u16string_view name) const {
  if (root().nodeName() != name) return false;
  if (document_->rootDeclared()) return true;
  // The name has no prefix, so that the namespace is the default one.
  const XmlParseError error =
      AtRoot(root(), IsInNamespace(root())
                         ? u"declared by the schema"
                         : u"in the namespace \"" + std::u16string(kSchemaNamespace) + u"\"");
  throw InvalidXml(error.reason, error.place);
}

}  // namespace praxen::detail
