// The start of the section as a sequential function chart.
#ifndef PRAXEN_EXAMPLES_PLANT_START_SEQUENCE_H_
#define PRAXEN_EXAMPLES_PLANT_START_SEQUENCE_H_

#include "praxen/praxen.h"

namespace plant {

/// Fills the tank with the pump and the inlet valve at the same time.
inline void AddFilling(praxen::SFCElements& sequence) {
  const auto both = sequence.AddSimultaneous1(2);
  praxen::SFCElements& pump = *both->SFCBranches->Item(1)->SFCElements;
  pump.AddStep2("RunPump", false, "", "P101_Start := true;", "P101_Start := false;");
  praxen::SFCElements& valve = *both->SFCBranches->Item(2)->SFCElements;
  valve.AddStep2("OpenInlet", false, "V101_Open := true;", "", "V101_Open := false;");
}

/// An empty tank is filled; one with enough in it only has its outlet opened.
inline void AddFirstLevel(praxen::SFCElements& sequence) {
  const auto selection = sequence.AddSelection1(2);
  const auto empty = selection->SFCBranches->Item(1);
  empty->SFCPriority = praxen::pxSFCPriorityHigh;
  empty->SFCElements->AddTransition2("IsEmpty", "LT101.Value < 1.0", "");
  AddFilling(*empty->SFCElements);
  empty->SFCElements->AddTransition2("IsFilled", "LT101.Value >= 2.0", "");
  const auto full = selection->SFCBranches->Item(2);
  full->SFCElements->AddTransition2("HasEnough", "LT101.Value >= 1.0", "");
  full->SFCElements->AddStep2("OpenOutlet", false, "V102_Open := true;", "", "");
  full->SFCElements->AddTransition2("IsOpen", "V102_IsOpen", "");
}

inline praxen::Ref<praxen::Program> StartSequence() {
  const auto program =
      praxen::ObjectFactory::NewProgram("StartSequence", "Brings the section into operation");
  program->TaskConnection = "Slow";
  program->Variables->Add1("Start", "bool");
  praxen::SFCElements& chart =
      *program->CodeBlocks->AddSFCCodeBlock2("Sequence", true, true)->SFCElements;
  chart.AddStep2("Idle", true, "", "Lamp_Ready := true;", "Lamp_Ready := false;");
  chart.AddTransition2("Go", "Start & NOT P101_Status.Fault", "");
  AddFirstLevel(chart);
  chart.AddStep2("InOperation", false, "", "Lamp_Running := true;", "Lamp_Running := false;");
  chart.AddTransition2("Stop", "NOT Start", "Idle");
  return program;
}

}  // namespace plant

#endif  // PRAXEN_EXAMPLES_PLANT_START_SEQUENCE_H_
