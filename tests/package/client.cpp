// Creates a variable with the installed library and checks the text it becomes.
#include <iostream>
#include <string_view>

#include "praxen/praxen.h"

#ifdef XERCES_CPP_NAMESPACE_BEGIN
#error "a public header includes the XML engine's"
#endif

int main() {
  auto variable = praxen::New<praxen::Variable>();
  variable->Name = u"Level";
  variable->TypeName = u"real";
  const praxen::Text xml = variable->Serialize();
  const std::u16string_view characters = xml;
  for (const auto* expected : {u"<Variable ", u"Name='Level'", u"Type='real'"}) {
    if (characters.find(expected) == std::u16string_view::npos) {
      std::cerr << "the text of the variable lacks an expected part\n";
      return 1;
    }
  }
  return 0;
}
