// The start of the section as a sequential function chart.
#ifndef PRAXEN_EXAMPLES_PLANT_START_SEQUENCE_H_
#define PRAXEN_EXAMPLES_PLANT_START_SEQUENCE_H_

#include "praxen/praxen.h"

namespace plant {

/// Fills the tank with the pump and the inlet valve at the same time.
inline void AddFilling(praxen::SFCElements& sequence) {
  const auto both = sequence.AddSimultaneous1(2);
  praxen::SFCElements& pump = *both->SFCBranches->Item(1)->SFCElements;
  pump.AddStep2(u"RunPump", false, u"", u"P101_Start := true;", u"P101_Start := false;");
  praxen::SFCElements& valve = *both->SFCBranches->Item(2)->SFCElements;
  valve.AddStep2(u"OpenInlet", false, u"V101_Open := true;", u"", u"V101_Open := false;");
}

/// An empty tank is filled; one with enough in it only has its outlet opened.
inline void AddFirstLevel(praxen::SFCElements& sequence) {
  const auto selection = sequence.AddSelection1(2);
  const auto empty = selection->SFCBranches->Item(1);
  empty->SFCPriority = praxen::pxSFCPriorityHigh;
  empty->SFCElements->AddTransition2(u"IsEmpty", u"LT101.Value < 1.0", u"");
  AddFilling(*empty->SFCElements);
  empty->SFCElements->AddTransition2(u"IsFilled", u"LT101.Value >= 2.0", u"");
  const auto full = selection->SFCBranches->Item(2);
  full->SFCElements->AddTransition2(u"HasEnough", u"LT101.Value >= 1.0", u"");
  full->SFCElements->AddStep2(u"OpenOutlet", false, u"V102_Open := true;", u"", u"");
  full->SFCElements->AddTransition2(u"IsOpen", u"V102_IsOpen", u"");
}

inline praxen::Ref<praxen::Program> StartSequence() {
  const auto program =
      praxen::ObjectFactory::NewProgram(u"StartSequence", u"Brings the section into operation");
  program->TaskConnection = u"Slow";
  program->Variables->Add1(u"Start", u"bool");
  praxen::SFCElements& chart =
      *program->CodeBlocks->AddSFCCodeBlock2(u"Sequence", true, true)->SFCElements;
  chart.AddStep2(u"Idle", true, u"", u"Lamp_Ready := true;", u"Lamp_Ready := false;");
  chart.AddTransition2(u"Go", u"Start & NOT P101_Status.Fault", u"");
  AddFirstLevel(chart);
  chart.AddStep2(u"InOperation", false, u"", u"Lamp_Running := true;", u"Lamp_Running := false;");
  chart.AddTransition2(u"Stop", u"NOT Start", u"Idle");
  return program;
}

}  // namespace plant

#endif  // PRAXEN_EXAMPLES_PLANT_START_SEQUENCE_H_
