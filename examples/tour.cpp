// What a C++ client does with the library, one function for each section of docs/cpp.md.
#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include "praxen/praxen.h"

namespace {

using praxen::New;
using praxen::ObjectFactory;
using praxen::Program;
using praxen::Ref;
using praxen::Text;

Ref<Program> Build() {
  const Ref<Program> program = New<Program>();
  program->Name = "LevelControl";
  const auto level = program->Variables->Add1("Level", "real");
  level->InitialValue = "2.5";
  program->CodeBlocks->AddSTCodeBlock2("Control", "Valve := Level < 2.5;");
  return program;
}

void Share() {
  const Ref<Program> program = Build();
  const auto variables = program->Variables;
  const auto level = variables->Item(1);
  variables->Remove(1);
  std::cout << level->Name << " lives on, held by the program that took it\n";

  const Ref<Program> other = New<Program>();
  other->Variables = variables;
  program->Variables->Add(level);
  std::cout << "both programs hold " << other->Variables->size() << " variable\n";
}

void UseTexts() {
  const Text name = "Füllstand";
  const Text same = u"Füllstand";
  const std::string utf8 = name.utf8();
  const std::u16string_view utf16 = name;
  std::cout << name << ": " << utf8.size() << " bytes, " << utf16.size() << " characters, "
            << (name == same ? "equal" : "different") << '\n';
}

void Walk(const Program& program) {
  for (const auto& variable : *program.Variables) {
    std::cout << variable.Name << ": " << variable.TypeName << '\n';
  }
  const auto& variables = *program.Variables;
  for (size_t i = 0; i < variables.size(); ++i) {
    std::cout << i + 1 << ". " << variables[i]->Name << '\n';
  }
  if (const auto level = variables.Find("Level")) std::cout << level->InitialValue << '\n';
}

void Distinguish(const Program& program) {
  for (auto& block : *program.CodeBlocks) {
    if (const auto text = block.As<praxen::STCodeBlock>()) std::cout << text->STcode << '\n';
    if (block.IsSFCCodeBlock()) std::cout << block.Name() << " is a chart\n";
  }
}

void Fail() {
  try {
    ObjectFactory::DeserializeProgram("<Program xmlns='PraxenSchema3_0'/>");
  } catch (const praxen::Error& error) {
    std::cout << std::hex << error.number() << std::dec << ": " << error.description() << '\n';
    std::cout << "line " << error.place().line << '\n';
  }
}

void Keep(const std::filesystem::path& folder) {
  praxen::SaveDocument(folder / "program.xml", Build()->Serialize());
  praxen::SaveDocument(folder / "for_git.xml", Build()->Serialize(), praxen::Encoding::Utf8);

  const Text text = praxen::LoadDocument(folder / "program.xml");
  const Ref<praxen::Object> document = praxen::ReadDocument(text);
  if (const auto program = document.As<Program>()) std::cout << program->Name << '\n';
}

void UseThreads() {
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([] {
      const Text xml = Build()->Serialize();
      ObjectFactory::DeserializeProgram(xml);
    });
  }
  for (std::thread& thread : threads) thread.join();
}

}  // namespace

int main() {
  const Ref<Program> program = Build();
  Share();
  UseTexts();
  Walk(*program);
  Distinguish(*program);
  Fail();
  const auto folder = std::filesystem::temp_directory_path() / "praxen_tour";
  std::filesystem::create_directories(folder);
  Keep(folder);
  std::filesystem::remove_all(folder);
  UseThreads();
  return EXIT_SUCCESS;
}
