// Which losses of a document a command tells.
#include "tools/praxen/losses.h"

#include <set>
#include <string>

#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"

namespace praxen::detail {

namespace {

std::set<std::u16string, std::less<>> NamesOfInformation() {
  std::set<std::u16string, std::less<>> names;
  for (const ClassDescription& description : AllClasses()) {
    for (const Attribute& attribute : AttributesOf(description)) {
      if (attribute.rule == Rule::ReadOnly) names.emplace(attribute.name);
    }
  }
  return names;
}

}  // namespace

// Other losses of writing are those of elements, none of which has the name of such an attribute.
bool IsInformation(const Loss& loss) {
  static const auto names = NamesOfInformation();
  return loss.kind == LossKind::NotWritten && names.contains(loss.name.view());
}

Losses LossesOfContent(Losses losses) {
  std::erase_if(losses, IsInformation);
  return losses;
}

Losses LossesInObjects(Losses losses) {
  std::erase_if(losses, [](const Loss& loss) { return loss.kind == LossKind::NotWritten; });
  return losses;
}

}  // namespace praxen::detail
