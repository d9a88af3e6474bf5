// Samples of what an application, its hardware and its compilation consist of.
#include "praxen/factory/object_factory.h"
#include "tools/praxen/samples.h"

namespace praxen::detail {

namespace {

Ref<SerializableObject> BuildApplicationVariables() {
  const auto variables =
      ObjectFactory::NewApplicationVariables(u"Variables of the application TankFarm");
  variables->GlobalVariables->Add2(u"PlantMode", u"dint", u"retain", u"0", u"", u"Engineer",
                                   u"0 = off, 1 = manual, 2 = auto");
  variables->Variables->Add1(u"LT101", u"RealIO");
  variables->Variables->Add2(u"P101_Start", u"BoolIO", u"", u"false", u"", u"Operate",
                             u"Contactor of the feed pump");
  variables->Signals->Add1(u"P101_Fault", u"TankFarm.P101.Fault", u"out", 2);
  return variables;
}

Ref<SerializableObject> BuildApplicationProperties() {
  return ObjectFactory::NewApplicationProperties(u"SIL2", true);
}

template <class List>
Ref<SerializableObject> BuildConnected(const Text& first, const Text& second) {
  const auto list = New<List>();
  list->Add2(first, 3, 2, 17);
  list->Add1(second);
  return list;
}

Ref<SerializableObject> BuildConnectedApplications() {
  return BuildConnected<ConnectedApplications>(u"FeedStation", u"Utilities");
}

Ref<SerializableObject> BuildConnectedLibraries() {
  return BuildConnected<ConnectedLibraries>(u"BasicLib", u"PumpLib");
}

Ref<SerializableObject> BuildConnectedHWLibraries() {
  return BuildConnected<ConnectedHWLibraries>(u"BasicHWLib", u"FieldbusHWLib");
}

Ref<SerializableObject> BuildTask() {
  const auto task = ObjectFactory::NewTask1(u"Fast", 100, pxTaskPriority1, 20, pxUpdateFirst);
  task->LatencySupervision = true;
  task->TaskSILLevel = pxTaskSIL2;
  return task;
}

Ref<SerializableObject> BuildExecutionOrder() {
  const auto order = ObjectFactory::NewExecutionOrder();
  const auto fast = order->Add1(u"Fast");
  fast->Add1(u"LevelControl");
  fast->Add1(u"Interlocks");
  order->Add1(u"Slow")->Add1(u"Tank");
  return order;
}

Ref<SerializableObject> BuildProjectConstants() {
  const auto constants = ObjectFactory::NewProjectConstants();
  constants->Add1(u"Tank.T101.Height", u"real", u"5.0");
  constants->Add1(u"Tank.T101.Area", u"real", u"1.77");
  constants->Add1(u"Pump.RestartDelay", u"time", u"30s");
  constants->Add1(u"Tank.T102.Height", u"real", u"4.0");
  constants->Add1(u"Shifts", u"dint", u"3");
  return constants;
}

Ref<SerializableObject> BuildAccessVariables() {
  const auto access = ObjectFactory::NewAccessVariables();
  const auto named = access->VAProtocols->AddVANamedProtocol1(u"MMS");
  named->Add2(u"TankLevel", u"TankFarm.LT101.Value", u"ReadOnly", 1);
  named->Add1(u"Setpoint", u"TankFarm.LevelControl.Setpoint");
  const auto addressed = access->VAProtocols->AddVAAddressedProtocol1(u"Serial");
  addressed->Add2(u"40001", u"TankFarm.LT101.Value", 1);
  return access;
}

Ref<SerializableObject> BuildHWUnit() {
  const auto controller = ObjectFactory::NewHWUnit1(u"0", u"CPU_M1", u"Controller of the tank farm",
                                                    u"{6B0E6B3E-3C58-4F7E-9C8E-0B6D4A6F5107}");
  controller->InstanceName = u"Controller_1";
  controller->ParameterSettings->Add1(u"IP address", u"192.0.2.10");
  const auto bus = controller->HWUnits->Add2(u"0.1", u"IOBUS", u"Bus of the I/O modules", u"");
  const auto analog = bus->HWUnits->Add2(u"0.1.1", u"AI8", u"Analog inputs, 8 channels", u"");
  analog->HWChannels->Add2(u"IW0.1.1.1", u"Input 1", u"TankFarm.LT101", u"Level of tank T101", u"0",
                           u"5", u"m", u"2", false);
  analog->HWChannels->Add1(u"IW0.1.1.2", u"Input 2", u"TankFarm.FT101", u"Flow into tank T101");
  const auto digital = bus->HWUnits->Add2(u"0.1.2", u"DO16", u"Digital outputs, 16 channels", u"");
  digital->RedundantPos = u"0.2.2";
  digital->HWSimulationSupported = true;
  const auto start = digital->HWChannels->Add1(u"QX0.1.2.1", u"Output 1", u"TankFarm.P101_Start",
                                               u"Contactor of the feed pump");
  start->Reversed = true;
  start->IsSignal = true;
  return controller;
}

Ref<PosInfo> Position(const Text& unit, const Text& tab, int32_t row, int32_t column) {
  const auto position = New<PosInfo>();
  position->POUName = unit;
  position->TabName = tab;
  position->Row = row;
  position->Col = column;
  position->MessageType = pxSingleProgramMsg;
  return position;
}

Ref<SerializableObject> BuildMessageBucket() {
  const auto bucket = New<MessageBucket>();
  bucket->NoOfErrors = 1;
  bucket->NoOfWarnings = 1;
  const auto info = New<InfoMsg>();
  info->Message = u"Checking application TankFarm";
  bucket->Add(info);
  const auto warning = New<WarningMsg>();
  warning->WarningNo = 2107;
  warning->Message = u"Variable 'Valve' is written twice in one cycle";
  warning->PosInfo = Position(u"LevelControl", u"Control", 5, 3);
  bucket->Add(warning);
  const auto error = New<ErrorMsg>();
  error->ErrorNo = 1204;
  error->Message = u"Unknown variable 'Levl'";
  error->PosInfo = Position(u"LevelControl", u"Control", 2, 4);
  error->ExtraInfo = New<ExtraInfo>();
  error->ExtraInfo->VarName = u"Levl";
  error->ExtraInfo->ExpectedType = u"real";
  bucket->Add(error);
  const auto find = New<FindMsg>();
  find->Message = u"LT101";
  find->PosInfo = Position(u"LevelControl", u"Control", 1, 31);
  bucket->Add(find);
  return bucket;
}

constexpr SampleFamily kFamilies[] = {
    {"application-variables", &BuildApplicationVariables},
    {"application-properties", &BuildApplicationProperties},
    {"connected-applications", &BuildConnectedApplications},
    {"connected-libraries", &BuildConnectedLibraries},
    {"connected-hw-libraries", &BuildConnectedHWLibraries},
    {"task", &BuildTask},
    {"execution-order", &BuildExecutionOrder},
    {"project-constants", &BuildProjectConstants},
    {"access-variables", &BuildAccessVariables},
    {"hw-unit", &BuildHWUnit},
    {"message-bucket", &BuildMessageBucket},
};

}  // namespace

std::span<const SampleFamily> ApplicationSamples() { return kFamilies; }

}  // namespace praxen::detail
