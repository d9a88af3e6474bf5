// Reading of a whole document.
#include "praxen/factory/deserialization.h"

#include <vector>

#include "praxen/core/error.h"
#include "praxen/factory/reading_frame.h"
#include "praxen/model/model.h"

namespace praxen::detail {

Ref<Object> DeserializeObject(const ClassDescription& description, const Text& XMLStr,
                              Losses* losses) {
  const LoadedDocument document(XMLStr, description.layout().element);
  Ref<Object> object = description.create();
  document.ReadRoot(*object, losses);
  return object;
}

Ref<ICodeBlock> CodeBlockDeserialization::operator()(const Text& XMLStr) const {
  const LoadedDocument document(XMLStr);
  static const std::vector<Choice> languages = ICodeBlock::choices();
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
