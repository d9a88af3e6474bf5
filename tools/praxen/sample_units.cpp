// Samples of program organisation units and their instances.
#include "praxen/factory/object_factory.h"
#include "tools/praxen/samples.h"

namespace praxen::detail {

namespace {

Ref<SerializableObject> BuildProgram() {
  const auto program = ObjectFactory::NewProgram(u"LevelControl", u"Keeps the level of tank T101");
  program->TaskConnection = u"Fast";
  program->Variables->Add2(u"Setpoint", u"real", u"coldretain", u"2.5", u"", u"Operate",
                           u"In metres");
  program->Variables->Add1(u"Level", u"RealIO");
  program->Variables->Add1(u"Valve", u"real");
  program->CommVariables->Add1(u"FeedFlow", u"RealIO", u"in");
  program->Signals->Add1(u"LevelHigh", u"Plant.LevelControl.High", u"out", u"1");
  program->FunctionBlocks->Add2(u"Controller", u"PidSimple", u"Fast", u"", u"Level controller");
  program->InitValues->Add1(u"LevelControl.Controller", u"Gain", u"1.2");
  program->CodeBlocks->AddSTCodeBlock2(u"Control",
                                       u"Controller(Sp := Setpoint, Pv := Level.Value);\n"
                                       u"IF Level.Value > 4.5 OR NOT Level.Status THEN\n"
                                       u"  Valve := 0.0; (* close & wait *)\n"
                                       u"ELSE\n"
                                       u"  Valve := Controller.Out;\n"
                                       u"END_IF;");
  return program;
}

Ref<SerializableObject> BuildFunctionBlockType() {
  const auto type = ObjectFactory::NewFunctionBlockType1(
      u"PidSimple", u"A controller without feed forward", false, false, pxPrivate, u"PidWindow",
      true, u"{6B0E6B3E-3C58-4F7E-9C8E-0B6D4A6F5101}");
  type->Parameters->Add1(u"Sp", u"real");
  type->Parameters->Add1(u"Pv", u"real");
  type->Parameters->Add2(u"Out", u"real", u"retain", pxOut, u"0.0", u"", u"", u"In per cent");
  type->ExtensibleParameters->Add1(u"Permit", u"bool");
  type->Variables->Add1(u"Gain", u"real");
  type->ExternalVariables->Add1(u"PlantMode", u"dint");
  type->FunctionBlocks->Add1(u"Delay", u"TON");
  type->CodeBlocks->AddSTCodeBlock2(u"Code", u"Out := Gain * (Sp - Pv);");
  return type;
}

Ref<SerializableObject> BuildFunctionBlock() {
  const auto block = ObjectFactory::NewFunctionBlock1(u"Controller", u"PidSimple", u"Fast",
                                                      u"{6B0E6B3E-3C58-4F7E-9C8E-0B6D4A6F5102}",
                                                      u"Level controller of tank T101");
  block->AspectObject = false;
  return block;
}

Ref<SerializableObject> BuildControlModuleType() {
  const auto type = ObjectFactory::NewControlModuleType(u"PumpUnit", u"A pump with its valve");
  type->CMTypeGraphics = u"Circle (0,0) 0.5; Line (-1,0) (1,0)";
  type->CMParameters->Add1(u"Name", u"string");
  type->CMParameters->Add2(u"Start", u"bool", u"false", u"", u"Operate", u"Starts the pump",
                           ObjectFactory::NewAutoPoint(pxTop));
  type->Variables->Add1(u"Status", u"PumpStatus");
  type->FunctionBlocks->Add1(u"Supervision", u"TON");
  type->ControlModules->AddControlModule(u"Outlet", u"ValveUnit")->GraphPos->XPos = 0.75;
  type->CodeBlocks->AddSTCodeBlock2(u"Run", u"Status.Running := Start AND NOT Supervision.Q;");
  type->GraphSize->UpperRight->Y = 0.5;
  return type;
}

Ref<SerializableObject> BuildSingleControlModuleType() {
  const auto type =
      ObjectFactory::NewSingleControlModuleType(u"TankUnit", u"Tank T101 with pump and valves");
  type->TypeGuid = u"{6B0E6B3E-3C58-4F7E-9C8E-0B6D4A6F5103}";
  type->SILLevel = u"SIL2";
  type->CMParameters->Add1(u"Level", u"RealIO");
  type->CommVariables->Add1(u"FeedFlow", u"RealIO", u"in");
  type->Signals->Add1(u"Full", u"Plant.Tank.Full", u"out", u"");
  type->ControlModules->AddControlModule(u"P101", u"PumpUnit");
  type->InitValues->Add1(u"Plant.Tank.P101", u"Start", u"false");
  type->CodeBlocks->AddSTCodeBlock2(u"Fill", u"P101.Start := Level.Value < 1.0;");
  return type;
}

Ref<SerializableObject> BuildSingleControlModuleInst() {
  const auto module = ObjectFactory::NewSingleControlModuleInst1(
      u"Tank", u"Slow", pxVisible, u"{6B0E6B3E-3C58-4F7E-9C8E-0B6D4A6F5103}",
      u"{6B0E6B3E-3C58-4F7E-9C8E-0B6D4A6F5104}",
      ObjectFactory::NewGraphPos(0.25, -0.5, 0, 0.2, 0.2));
  module->Description = u"Tank T101";
  module->CMConnections->Add1(u"Level", u"LT101");
  return module;
}

Ref<SerializableObject> BuildControlModule() {
  const auto module = ObjectFactory::NewControlModule1(
      u"P101", u"PumpUnit", u"Fast", pxVisible, u"{6B0E6B3E-3C58-4F7E-9C8E-0B6D4A6F5105}",
      u"Feed pump", ObjectFactory::NewGraphPos(-0.5, 0.25, 90, 0.1, 0.1));
  module->CMConnections->Add1(u"Name", u"'P101'");
  const auto drawn = module->CMConnections->Add2(u"Start", u"StartPump", true);
  drawn->Points->Add1(-0.5, 0.35);
  drawn->Points->Add1(-0.5, 0.8);
  return module;
}

Ref<SerializableObject> BuildControlModules() {
  const auto modules = ObjectFactory::NewControlModules();
  modules->AddControlModule(u"P101", u"PumpUnit");
  modules->AddControlModule(u"V101", u"ValveUnit")->VisibilityInGraphics = pxInvisible;
  modules->AddSingleControlModuleInst(u"Tank");
  return modules;
}

Ref<SerializableObject> BuildCMConnection() {
  const auto connection = ObjectFactory::NewCMConnection1(u"Level", u"LT101", true);
  connection->Points->Add1(-1, 0);
  connection->Points->Add1(-0.25, 0);
  connection->Points->Add1(-0.25, 0.5);
  return connection;
}

Ref<SerializableObject> BuildDiagram() {
  const auto diagram =
      ObjectFactory::NewDiagram(u"Interlocks", u"What keeps the pump from running");
  diagram->TaskConnection = u"Fast";
  diagram->Variables->Add1(u"Permit", u"bool");
  diagram->FunctionBlocks->Add1(u"Delay", u"TON");
  diagram->ControlModules->AddControlModule(u"Panel", u"PumpPanel");
  diagram->DiagramInstances->Add1(u"P101_Permit", u"StartPermit");
  const auto code = New<FDCodeBlock>();
  code->Name = u"Diagram";
  code->FDAsXMLStr = u"<FunctionDiagram><Block Name='Delay'/></FunctionDiagram>";
  diagram->CodeBlocks->AddFDCodeBlock(code);
  return diagram;
}

Ref<SerializableObject> BuildDiagramType() {
  const auto type = ObjectFactory::NewDiagramType(u"StartPermit", u"All permits of a pump");
  type->Parameters->Add1(u"LevelGood", u"bool");
  type->Parameters->Add1(u"Permit", u"bool")->Direction = pxOut;
  type->CodeBlocks->AddSTCodeBlock2(u"Code", u"Permit := LevelGood;");
  return type;
}

Ref<SerializableObject> BuildDiagramInstance() {
  const auto instance = ObjectFactory::NewDiagramInstance1(
      u"P101_Permit", u"StartPermit", u"{6B0E6B3E-3C58-4F7E-9C8E-0B6D4A6F5106}",
      u"Permits of the feed pump");
  instance->ExposePropertiesInParent = true;
  return instance;
}

constexpr SampleFamily kFamilies[] = {
    {"program", &BuildProgram},
    {"function-block-type", &BuildFunctionBlockType},
    {"function-block", &BuildFunctionBlock},
    {"control-module-type", &BuildControlModuleType},
    {"single-control-module-type", &BuildSingleControlModuleType},
    {"single-control-module-inst", &BuildSingleControlModuleInst},
    {"control-module", &BuildControlModule},
    {"control-modules", &BuildControlModules},
    {"cm-connection", &BuildCMConnection},
    {"diagram", &BuildDiagram},
    {"diagram-type", &BuildDiagramType},
    {"diagram-instance", &BuildDiagramInstance},
};

}  // namespace

std::span<const SampleFamily> UnitSamples() { return kFamilies; }

}  // namespace praxen::detail
