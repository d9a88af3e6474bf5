// The example of the README: a program is made, written as XML and read back.
#include <iostream>

#include "praxen/praxen.h"

int main() {
  const auto program = praxen::New<praxen::Program>();
  program->Name = "LevelControl";
  program->Variables->Add1("Level", "real");
  program->CodeBlocks->AddSTCodeBlock2("Control", "Valve := Level < 2.5;");
  const praxen::Text xml = program->Serialize();
  std::cout << xml;

  const auto again = praxen::ObjectFactory::DeserializeProgram(xml);
  return again->Variables->Item(1)->Name == "Level" ? 0 : 1;
}
