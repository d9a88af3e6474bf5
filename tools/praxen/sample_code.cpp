// Samples of code blocks in every language.
#include "praxen/factory/object_factory.h"
#include "tools/praxen/samples.h"

namespace praxen::detail {

namespace {

Ref<SerializableObject> BuildST() {
  return ObjectFactory::NewSTCodeBlock1(u"Control",
                                        u"IF Level < 1.0 & NOT Fault THEN\n"
                                        u"\tPump := true;\n"
                                        u"ELSIF Level > 3.0 THEN\n"
                                        u"\tPump := false;\n"
                                        u"END_IF;");
}

Ref<SerializableObject> BuildLD() {
  return ObjectFactory::NewLDCodeBlock1(u"Interlock", u"Pump := Start AND (Level > 0.2);");
}

Ref<SerializableObject> BuildFBD() {
  return ObjectFactory::NewFBDCodeBlock1(u"Scaling", u"Level := Scale(Raw, 0.0, 5.0);");
}

Ref<SerializableObject> BuildFD() {
  const auto block = New<FDCodeBlock>();
  block->Name = u"Diagram";
  block->FDAsXMLStr =
      u"<FunctionDiagram><Block Name='Limit' Type='LIMIT'/><Wire From='LT101' To='Limit.In'/>"
      u"</FunctionDiagram>";
  return block;
}

Ref<SerializableObject> BuildIL() {
  const auto block = ObjectFactory::NewILCodeBlock(u"Latch");
  block->ILRows->AddComment(u"The pump runs until the stop button or a fault");
  block->ILRows->AddRow(u"", u"LD", u"Start", u"Start button");
  block->ILRows->AddRow(u"", u"OR", u"Pump", u"");
  block->ILRows->AddRow(u"Stop", u"ANDN", u"Fault", u"");
  block->ILRows->AddRow(u"", u"ST", u"Pump", u"Contactor");
  return block;
}

Ref<SerializableObject> BuildSFC() {
  const auto block = ObjectFactory::NewSFCCodeBlock1(u"Fill", true, true);
  SFCElements& chart = *block->SFCElements;
  chart.AddStep2(u"Idle", true, u"", u"Lamp := Ready;", u"");
  chart.AddTransition2(u"Go", u"Start & NOT Fault", u"");
  const auto fill = chart.AddSelection1(2);
  SFCElements& slow = *fill->SFCBranches->Item(1)->SFCElements;
  fill->SFCBranches->Item(1)->SFCPriority = pxSFCPriorityHigh;
  slow.AddTransition2(u"NearlyFull", u"Level > 2.5", u"");
  slow.AddStep2(u"Trickle", false, u"", u"V102 := true;", u"V102 := false;");
  slow.AddTransition2(u"FullAfterTrickle", u"Level >= 3.0", u"");
  SFCElements& fast = *fill->SFCBranches->Item(2)->SFCElements;
  fast.AddTransition2(u"Empty", u"Level <= 2.5", u"");
  SFCElements& pump = *fast.AddSubSequence1(u"PumpAndValve")->SFCElements;
  const auto both = pump.AddSimultaneous1(2);
  both->SFCBranches->Item(1)->SFCElements->AddStep2(u"RunPump", false, u"", u"P101 := true;",
                                                    u"P101 := false;");
  both->SFCBranches->Item(2)->SFCElements->AddStep2(u"OpenValve", false, u"V101 := true;", u"",
                                                    u"V101 := false;");
  fast.AddTransition2(u"Full", u"Level >= 3.0", u"");
  chart.AddStep1(u"Done");
  chart.AddTransition2(u"Again", u"NOT Start", u"Idle");
  return block;
}

constexpr SampleFamily kFamilies[] = {
    {"st-code-block", &BuildST}, {"ld-code-block", &BuildLD}, {"fbd-code-block", &BuildFBD},
    {"fd-code-block", &BuildFD}, {"il-code-block", &BuildIL}, {"sfc-code-block", &BuildSFC},
};

}  // namespace

std::span<const SampleFamily> CodeSamples() { return kFamilies; }

}  // namespace praxen::detail
