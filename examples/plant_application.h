// The application around the programs: tasks, variables, constants, libraries and access.
#ifndef PRAXEN_EXAMPLES_PLANT_APPLICATION_H_
#define PRAXEN_EXAMPLES_PLANT_APPLICATION_H_

#include "praxen/praxen.h"

namespace plant {

inline praxen::Ref<praxen::Task> FastTask() {
  const auto task = praxen::ObjectFactory::NewTask(u"Fast", 100, praxen::pxTaskPriority1);
  task->LatencySupervision = true;
  return task;
}

inline praxen::Ref<praxen::Task> SlowTask() {
  return praxen::ObjectFactory::NewTask1(u"Slow", 1000, praxen::pxTaskPriority3, 50,
                                         praxen::pxUpdateFirst);
}

inline praxen::Ref<praxen::ExecutionOrder> Order() {
  const auto order = praxen::ObjectFactory::NewExecutionOrder();
  const auto fast = order->Add1(u"Fast");
  fast->Add1(u"LevelControl");
  fast->Add1(u"Interlocks");
  fast->Add1(u"P101");
  order->Add1(u"Slow")->Add1(u"StartSequence");
  return order;
}

/// The dots in the names make groups: the document has Tank, and T101 in it.
inline praxen::Ref<praxen::ProjectConstants> Constants() {
  const auto constants = praxen::ObjectFactory::NewProjectConstants();
  constants->Add1(u"Tank.T101.Height", u"real", u"5.0");
  constants->Add1(u"Tank.T101.Area", u"real", u"1.77");
  constants->Add1(u"Pump.RestartDelay", u"time", u"30s");
  return constants;
}

inline praxen::Ref<praxen::AccessVariables> Access() {
  const auto access = praxen::ObjectFactory::NewAccessVariables();
  const auto named = access->VAProtocols->AddVANamedProtocol1(u"MMS");
  named->Add2(u"TankLevel", u"TankFarm.LT101.Value", u"ReadOnly", 1);
  named->Add1(u"Setpoint", u"TankFarm.LevelControl.Setpoint");
  const auto addressed = access->VAProtocols->AddVAAddressedProtocol1(u"Serial");
  addressed->Add1(u"40001", u"TankFarm.LT101.Value");
  return access;
}

inline praxen::Ref<praxen::ConnectedLibraries> Libraries() {
  const auto libraries = praxen::ObjectFactory::NewConnectedLibraries();
  libraries->Add2(u"BasicLib", 1, 8, 3);
  libraries->Add1(u"PumpLib");
  return libraries;
}

inline praxen::Ref<praxen::ApplicationVariables> Variables() {
  const auto variables = praxen::ObjectFactory::NewApplicationVariables(u"Variables of TankFarm");
  variables->GlobalVariables->Add2(u"PlantMode", u"dint", u"retain", u"0", u"", u"Engineer",
                                   u"0 = off, 1 = manual, 2 = auto");
  for (const char16_t* const measured : {u"LT101", u"FT101"}) {
    variables->Variables->Add1(measured, u"RealIO");
  }
  for (const char16_t* const driven : {u"P101_Start", u"V101_Open", u"V102_Open"}) {
    variables->Variables->Add1(driven, u"BoolIO");
  }
  variables->Variables->Add1(u"P101_Status", u"PumpStatus");
  return variables;
}

inline praxen::Ref<praxen::ApplicationProperties> Properties() {
  return praxen::ObjectFactory::NewApplicationProperties(u"SIL2", false);
}

}  // namespace plant

#endif  // PRAXEN_EXAMPLES_PLANT_APPLICATION_H_
