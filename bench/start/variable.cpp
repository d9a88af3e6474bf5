// A program that writes one variable and reads it again.
#include "praxen/praxen.h"

int main() {
  const auto variable = praxen::ObjectFactory::NewVariable(u"Level", u"real");
  const praxen::Text text = variable->Serialize();
  return praxen::ObjectFactory::DeserializeVariable(text)->Name == variable->Name ? 0 : 1;
}
