// Reading of a whole document.
#include "praxen/factory/deserialization.h"

#include <vector>

#include "praxen/core/error.h"
#include "praxen/factory/direct_reading.h"
#include "praxen/factory/reading_frame.h"
#include "praxen/model/model.h"

namespace praxen::detail {

namespace {

Ref<Object> CreateClass(std::u16string_view root, const void* context) {
  const auto& description = *static_cast<const ClassDescription*>(context);
  return root == description.layout().element ? description.create() : nullptr;
}

Ref<Object> CreateChoice(std::u16string_view root, const void* context) {
  for (const Choice& choice : *static_cast<const std::vector<Choice>*>(context)) {
    if (root == choice.elementName()) return choice.create();
  }
  return nullptr;
}

}  // namespace

Ref<Object> DeserializeObject(const ClassDescription& description, const Text& XMLStr,
                              Losses* losses) {
  if (losses == nullptr && UsesDirectReading()) {
    if (Ref<Object> object = ReadDirectly(XMLStr, CreateClass, &description)) return object;
  }
  const LoadedDocument document(XMLStr, description.layout().element);
  Ref<Object> object = description.create();
  document.ReadRoot(*object, losses);
  return object;
}

Ref<ICodeBlock> CodeBlockDeserialization::operator()(const Text& XMLStr) const {
  static const std::vector<Choice> languages = ICodeBlock::choices();
  if (UsesDirectReading()) {
    if (Ref<Object> block = ReadDirectly(XMLStr, CreateChoice, &languages)) {
      return Cast<ICodeBlock>(block);
    }
  }
  const LoadedDocument document(XMLStr);
  for (const Choice& language : languages) {
    if (!document.IsRoot(language.elementName())) continue;
    const Ref<Object> block = language.create();
    block->ReadXML(document.root());
    return Cast<ICodeBlock>(block);
  }
  const XmlNode root = document.root();
  throw WrongRootElement(root.nodeName(), u"a code block").At(root.place());
}

}  // namespace praxen::detail
