// What the documents hold: names and GUIDs that differ, and types and texts that repeat.
#include "bench/documents.h"

#include <array>
#include <cstdio>

namespace praxen::detail::bench {
namespace {

const std::array<Text, 4>& Types() {
  static const std::array<Text, 4> types{u"real", u"dint", u"bool", u"string[40]"};
  return types;
}

Text Guid(size_t number) {
  char guid[64];
  std::snprintf(guid, sizeof guid, "%08zx-5a1c-4b6e-9d2f-%012zx", number, number * 2654435761U);
  return FromUtf8(guid);
}

// Some 1,200 characters.
Text Code(size_t number) {
  std::u16string code;
  for (size_t line = 0; line < 16; ++line) {
    const Text level = Numbered(u"Level", number * 16 + line);
    code.append(u"if ").append(level).append(u" < 12.5 and (Valve.Open & Ready) then\r\n  ");
    code.append(level).append(u" := ").append(level).append(u" + 0.25;\r\nend_if;\r\n");
  }
  return code;
}

void AddVariables(Variables& variables, size_t count) {
  for (size_t i = 0; i < count; ++i) {
    const Ref<Variable> variable = variables.Add1(Numbered(u"Level", i), Types()[i % 4]);
    if (i % 3 == 0) variable->InitialValue = Numbered(u"1", i);
    if (i % 4 == 0) variable->Description = u"Level of tank " + Numbered(u"T", i);
  }
}

void AddFunctionBlocks(FunctionBlocks& blocks, size_t count) {
  for (size_t i = 0; i < count; ++i) {
    const Ref<FunctionBlock> block = blocks.Add1(Numbered(u"Motor", i), Text(u"MotorUni"));
    block->TaskConnection = u"Fast";
    block->Guid = Guid(i);
  }
}

void AddCode(CodeBlocks& blocks, size_t count) {
  for (size_t i = 0; i < count; ++i) {
    const auto block = New<STCodeBlock>();
    block->Name = Numbered(u"Code", i);
    block->STcode = Code(i);
    blocks.Add(block);
  }
}

}  // namespace

Text Numbered(std::u16string_view name, size_t number) {
  char digits[24];
  std::snprintf(digits, sizeof digits, "%05zu", number);
  return std::u16string(name).append(FromUtf8(digits));
}

Ref<Program> BuildProgram(size_t functionBlocks) {
  auto program = New<Program>();
  program->Name = u"Main";
  AddVariables(*program->Variables, 3 * functionBlocks);
  AddFunctionBlocks(*program->FunctionBlocks, functionBlocks);
  AddCode(*program->CodeBlocks, functionBlocks * 3 / 20);
  return program;
}

Ref<Program> BuildVariables(size_t count) {
  auto program = New<Program>();
  program->Name = u"List";
  AddVariables(*program->Variables, count);
  return program;
}

Ref<HWUnit> BuildHardware(size_t channels) {
  constexpr size_t kChannels = 100;
  constexpr size_t kUnits = 20;
  auto root = New<HWUnit>();
  root->Path = u"0";
  Ref<HWUnit> rack;
  for (size_t unit = 0; unit < channels / kChannels; ++unit) {
    if (unit % kUnits == 0) rack = root->HWUnits->Add1(Numbered(u"0.", unit / kUnits));
    const Ref<HWUnit> module = rack->HWUnits->Add1(rack->Path + Numbered(u".", unit % kUnits));
    module->TypeID = u"AI810";
    for (size_t i = 0; i < kChannels; ++i) {
      module->HWChannels->Add1(module->Path + Numbered(u".", i), Numbered(u"Input", i),
                               u"Main." + Numbered(u"Level", unit * kChannels + i),
                               Text(u"Level of the tank"));
    }
  }
  return root;
}

Ref<MessageBucket> BuildMessages(size_t count) {
  auto bucket = New<MessageBucket>();
  for (size_t i = 0; i < count; ++i) {
    const auto message = New<ErrorMsg>();
    message->ErrorNo = static_cast<int32_t>(1000 + i % 50);
    message->Message = u"The variable " + Numbered(u"Level", i) + u" is not declared";
    bucket->Add(message);
  }
  return bucket;
}

Ref<ProjectConstants> BuildConstants(size_t count) {
  auto constants = New<ProjectConstants>();
  for (size_t i = 0; i < count; ++i) {
    const Text group = Numbered(u"Area", i / 1000) + u"." + Numbered(u"Unit", i / 20 % 50);
    constants->Add1(group + u"." + Numbered(u"Limit", i), Text(u"dint"), Numbered(u"4", i));
  }
  return constants;
}

Ref<ControlModuleType> BuildModules(size_t count) {
  auto type = New<ControlModuleType>();
  type->Name = u"Plant";
  const auto place = [](size_t number) { return static_cast<double>(number % 8'000) / 4'000 - 1; };
  for (size_t i = 0; i < count; ++i) {
    const auto instance = New<ControlModule>();
    instance->Name = Numbered(u"Valve", i);
    instance->TypeName = u"ValveUni";
    instance->Guid = Guid(i);
    instance->CMConnections->Add1(Text(u"Name"), u"'" + Numbered(u"V", i) + u"'");
    const auto drawn =
        instance->CMConnections->Add2(Text(u"Open"), Numbered(u"Control.Open", i), true);
    for (size_t point = 0; point < 3; ++point) {
      drawn->Points->Add1(place(7 * i + point), place(11 * i + 3 * point));
    }
    instance->GraphPos->XPos = place(13 * i);
    instance->GraphPos->YPos = place(17 * i);
    instance->GraphPos->XScale = instance->GraphPos->YScale = 0.05;
    type->ControlModules->Add(instance);
  }
  return type;
}

std::vector<Text> BuildSmallDocuments(size_t count) {
  std::vector<Text> documents;
  for (size_t i = 0; i < count; ++i) {
    const auto program = New<Program>();
    program->Name = Numbered(u"Small", i);
    AddVariables(*program->Variables, 6);
    AddFunctionBlocks(*program->FunctionBlocks, 2);
    program->Description = Numbered(u"A program of a small plant, number ", i);
    documents.push_back(program->Serialize());
  }
  return documents;
}

}  // namespace praxen::detail::bench
