// The level control of tank T101 in Structured Text, and the interlocks as a diagram.
#ifndef PRAXEN_EXAMPLES_PLANT_PROGRAM_H_
#define PRAXEN_EXAMPLES_PLANT_PROGRAM_H_

#include "praxen/praxen.h"

namespace plant {

inline praxen::Ref<praxen::Program> LevelControl() {
  const auto program =
      praxen::ObjectFactory::NewProgram("LevelControl", "Keeps the level of tank T101");
  program->TaskConnection = "Fast";
  program->Variables->Add2("Setpoint", "real", "coldretain", "2.5", "", "Operate", "In metres");
  program->Variables->Add2("Valve", "real", "retain", "0.0", "", "",
                           "Opening of valve V102 in per cent");
  program->FunctionBlocks->Add2("Controller", "PidSimple", "Fast", "", "Level controller");
  program->Signals->Add1("LevelHigh", "TankFarm.LevelControl.High", "out", 1);
  program->InitValues->Add1("TankFarm.LevelControl.Controller", "Gain", "1.2");
  program->CodeBlocks->AddSTCodeBlock2("Control",
                                       "Controller(Sp := Setpoint, Pv := LT101.Value);\n"
                                       "IF LT101.Value > 4.5 THEN\n"
                                       "  Valve := 100.0; (* drain before it overflows *)\n"
                                       "ELSE\n"
                                       "  Valve := Controller.Out;\n"
                                       "END_IF;");
  return program;
}

inline praxen::Ref<praxen::Diagram> Interlocks() {
  const auto diagram =
      praxen::ObjectFactory::NewDiagram("Interlocks", "What keeps the pump from running");
  diagram->TaskConnection = "Fast";
  diagram->Variables->Add1("Permit", "bool");
  diagram->FunctionBlocks->Add1("RestartDelay", "TON");
  diagram->DiagramInstances->Add1("P101_Permit", "StartPermit");
  const auto code = praxen::New<praxen::FDCodeBlock>();
  code->Name = "Permits";
  code->FDAsXMLStr =
      "<FunctionDiagram><Block Name='And' Type='AND'/>"
      "<Wire From='LT101.Status' To='And.In1'/></FunctionDiagram>";
  diagram->CodeBlocks->AddFDCodeBlock(code);
  return diagram;
}

}  // namespace plant

#endif  // PRAXEN_EXAMPLES_PLANT_PROGRAM_H_
