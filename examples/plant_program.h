// The level control of tank T101 in Structured Text, and the interlocks as a diagram.
#ifndef PRAXEN_EXAMPLES_PLANT_PROGRAM_H_
#define PRAXEN_EXAMPLES_PLANT_PROGRAM_H_

#include "praxen/praxen.h"

namespace plant {

inline praxen::Ref<praxen::Program> LevelControl() {
  const auto program =
      praxen::ObjectFactory::NewProgram(u"LevelControl", u"Keeps the level of tank T101");
  program->TaskConnection = u"Fast";
  program->Variables->Add2(u"Setpoint", u"real", u"coldretain", u"2.5", u"", u"Operate",
                           u"In metres");
  program->Variables->Add2(u"Valve", u"real", u"retain", u"0.0", u"", u"",
                           u"Opening of valve V102 in per cent");
  program->FunctionBlocks->Add2(u"Controller", u"PidSimple", u"Fast", u"", u"Level controller");
  program->Signals->Add1(u"LevelHigh", u"TankFarm.LevelControl.High", u"out", 1);
  program->InitValues->Add1(u"TankFarm.LevelControl.Controller", u"Gain", u"1.2");
  program->CodeBlocks->AddSTCodeBlock2(u"Control",
                                       u"Controller(Sp := Setpoint, Pv := LT101.Value);\n"
                                       u"IF LT101.Value > 4.5 THEN\n"
                                       u"  Valve := 100.0; (* drain before it overflows *)\n"
                                       u"ELSE\n"
                                       u"  Valve := Controller.Out;\n"
                                       u"END_IF;");
  return program;
}

inline praxen::Ref<praxen::Diagram> Interlocks() {
  const auto diagram =
      praxen::ObjectFactory::NewDiagram(u"Interlocks", u"What keeps the pump from running");
  diagram->TaskConnection = u"Fast";
  diagram->Variables->Add1(u"Permit", u"bool");
  diagram->FunctionBlocks->Add1(u"RestartDelay", u"TON");
  diagram->DiagramInstances->Add1(u"P101_Permit", u"StartPermit");
  const auto code = praxen::New<praxen::FDCodeBlock>();
  code->Name = u"Permits";
  code->FDAsXMLStr =
      u"<FunctionDiagram><Block Name='And' Type='AND'/>"
      u"<Wire From='LT101.Status' To='And.In1'/></FunctionDiagram>";
  diagram->CodeBlocks->AddFDCodeBlock(code);
  return diagram;
}

}  // namespace plant

#endif  // PRAXEN_EXAMPLES_PLANT_PROGRAM_H_
