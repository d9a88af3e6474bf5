// Bytes per object, counted by the allocator.
#include "bench/model_memory.h"

#include <cstdio>

#include "bench/documents.h"
#include "bench/memory.h"

namespace praxen::detail::bench {
namespace {

template <class Make>
MemoryUse Count(Make make) {
  const MemoryCount count;
  const auto made = make();
  return count.use();
}

template <class Element, class Class>
void PrintPerObject(const char* name, size_t count, Ref<Class> (*build)(size_t)) {
  const Text text = build(count)->Serialize();
  const MemoryUse built = Count([&] { return build(count); });
  const MemoryUse read = Count([&] { return Deserialization<Class>()(text); });
  const auto each = [&](int64_t amount) {
    return static_cast<double>(amount) / static_cast<double>(count);
  };
  std::printf("%-16s %8zu %12.1f %12.1f %14.1f %14.2f\n", name, sizeof(Element), each(built.held),
              each(read.held), static_cast<double>(text.size()) * 2 / static_cast<double>(count),
              each(read.allocations));
}

Ref<Program> BuildFunctionBlocks(size_t count) {
  auto program = New<Program>();
  program->Name = u"Blocks";
  for (size_t i = 0; i < count; ++i) {
    program->FunctionBlocks->Add1(Numbered(u"Motor", i), Text(u"MotorUni"))->Guid =
        Numbered(u"5e0a1c9b-5a1c-4b6e-9d2f-0000000", i);
  }
  return program;
}

}  // namespace

void PrintModelMemory() {
  std::printf("\n%-16s %8s %12s %12s %14s %14s\n", "bytes per", "itself", "built", "read",
              "of its text", "allocations");
  PrintPerObject<Variable>("variable", 60'000, &BuildVariables);
  PrintPerObject<FunctionBlock>("function block", 60'000, &BuildFunctionBlocks);
  PrintPerObject<HWChannel>("channel", 200'000, &BuildHardware);
}

std::vector<Goal> MemoryGoals() {
  const Text text = BuildProgram(20'000)->Serialize();
  const MemoryUse read = Count([&] { return ObjectFactory::DeserializeProgram(text); });
  const double bytes = static_cast<double>(text.size()) * sizeof(char16_t);
  return {{"program, read: peak memory over the text's bytes",
           static_cast<double>(read.peak) / bytes, Goal::Bound::AtMost, 1.5}};
}

}  // namespace praxen::detail::bench
