// Programs that hold code of several languages, long texts, and what people write by hand.
#include <array>

#include "bench/documents.h"

namespace praxen::detail::bench {
namespace {

constexpr size_t kSelectionsInside = 4;

void AddSequence(SFCElements& sequence, size_t inside, size_t& number) {
  const Text name = Numbered(u"Level", ++number);
  sequence.AddStep2(Numbered(u"Step", number), false, name + u" := " + name + u" + 0.25;",
                    u"Valve.Open := " + name + u" < 12.5 & Ready;", Text());
  sequence.AddTransition2(Numbered(u"Reached", number), name + u" >= 12.5", Text());
  if (inside == 0) return;
  const Ref<SFCSelection> selection = sequence.AddSelection1(2);
  for (int32_t branch = 1; branch <= 2; ++branch) {
    SFCElements& elements = *selection->SFCBranches->Item(branch)->SFCElements;
    const Text mode = Numbered(u"Mode", ++number);
    elements.AddTransition2(Numbered(u"Choice", number), mode + u" = 1", Text());
    AddSequence(elements, inside - 1, number);
  }
}

// Some 400 characters.
Text Prose(size_t number) {
  static const std::array<std::u16string, 4> kSentences{
      u"The level of the tank <LT101> is scaled & limited to \"0 < x < 100\". ",
      u"\u0423\u0440\u043E\u0432\u0435\u043D\u044C \u0440\u0435\u0437\u0435\u0440"
      u"\u0432\u0443\u0430\u0440\u0430 \u0432 \u043C\u0435\u0442\u0440\u0430\u0445. ",
      u"\u6C34\u7BB1\u7684\u6DB2\u4F4D\uFF0C\u5355\u4F4D\u4E3A\u7C73\u3002",
      u"\u0397 \u03C3\u03C4\u03AC\u03B8\u03BC\u03B7 \u03C4\u03BF\u03C5 "
      u"\u03B4\u03BF\u03C7\u03B5\u03AF\u03BF\u03C5 \U0001F6B0. "};
  std::u16string prose;
  for (size_t i = 0; i < 12; ++i) prose += kSentences[(number + i) % kSentences.size()];
  return prose;
}

}  // namespace

Ref<Program> BuildCharts(size_t count) {
  auto program = New<Program>();
  program->Name = u"Sequences";
  size_t number = 0;
  for (size_t i = 0; i < count; ++i) {
    const auto block = New<SFCCodeBlock>();
    block->Name = Numbered(u"Chart", i);
    AddSequence(*block->SFCElements, kSelectionsInside, number);
    program->CodeBlocks->Add(block);
  }
  return program;
}

Ref<Program> BuildTexts(size_t count) {
  auto program = New<Program>();
  program->Name = u"Texts";
  for (size_t i = 0; i < count; ++i) {
    program->FunctionBlocks->Add1(Numbered(u"Motor", i), Text(u"MotorUni"))->Description = Prose(i);
    const auto block = New<STCodeBlock>();
    block->Name = Numbered(u"Code", i);
    block->STcode = u"(* " + Prose(i) + u"\r\n" + Prose(i + 1) + u" *)\r\n";
    program->CodeBlocks->Add(block);
  }
  return program;
}

Ref<Program> BuildInstructions(size_t rows) {
  constexpr size_t kRows = 50;
  auto program = New<Program>();
  program->Name = u"Lists";
  for (size_t i = 0; i < rows / kRows; ++i) {
    const auto block = New<ILCodeBlock>();
    block->Name = Numbered(u"List", i);
    for (size_t row = 0; row < kRows; ++row) {
      if (row % 10 == 0) {
        block->ILRows->AddComment(u"The pump runs until the tank is full, part " +
                                  Numbered(u"", row));
      } else {
        block->ILRows->AddRow(row % 10 == 1 ? Numbered(u"Mark", row) : Text(), Text(u"ANDN"),
                              Numbered(u"Level", row), row % 3 == 0 ? Text(u"Fault") : Text());
      }
    }
    program->CodeBlocks->Add(block);
  }
  return program;
}

Text BuildEdited(size_t variables) {
  std::u16string text =
      u"<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n"
      u"<Program xmlns=\"PraxenSchema3_0\" Name=\"Edited\">\r\n"
      u"  <Variables>\r\n";
  for (size_t i = 0; i < variables; ++i) {
    if (i % 8 == 0) text.append(u"    <!-- Tank ").append(Numbered(u"", i / 8)).append(u" -->\r\n");
    text.append(u"    <Variable Name=\"").append(Numbered(u"Level", i));
    text.append(u"\" Type='real' Attribute=\"\" InitialValue=\"0.5\">\r\n");
    text.append(u"      <Description>1 &#60; level &#x3C; 5 &amp; rising</Description>\r\n");
    text.append(u"    </Variable>\r\n");
  }
  text.append(u"  </Variables>\r\n  <CodeBlocks>\r\n");
  for (size_t i = 0; i < variables / 20; ++i) {
    text.append(u"    <STCodeBlock Name=\"").append(Numbered(u"Code", i)).append(u"\">\r\n");
    text.append(u"      <ST_Code><![CDATA[if Level < 12.5 & Ready then\r\n");
    text.append(u"  Valve.Open := true;\r\nend_if;]]></ST_Code>\r\n    </STCodeBlock>\r\n");
  }
  return text.append(u"  </CodeBlocks>\r\n</Program>\r\n");
}

}  // namespace praxen::detail::bench
