// The example of the README: a program is made, written as XML and read back.
#include <iostream>

#include "praxen/praxen.h"

int main() {
  const auto program = praxen::New<praxen::Program>();
  program->Name = u"LevelControl";
  program->Variables->Add1(u"Level", u"real");
  program->CodeBlocks->AddSTCodeBlock2(u"Control", u"Valve := Level < 2.5;");
  const praxen::Text xml = program->Serialize();
  std::cout << xml;

  const auto again = praxen::ObjectFactory::DeserializeProgram(xml);
  return again->Variables->Item(1)->Name == u"Level" ? 0 : 1;
}
