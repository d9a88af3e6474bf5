// The application around the programs: tasks, variables, constants, libraries and access.
#ifndef PRAXEN_EXAMPLES_PLANT_APPLICATION_H_
#define PRAXEN_EXAMPLES_PLANT_APPLICATION_H_

#include "praxen/praxen.h"

namespace plant {

inline praxen::Ref<praxen::Task> FastTask() {
  const auto task = praxen::ObjectFactory::NewTask("Fast", 100, praxen::pxTaskPriority1);
  task->LatencySupervision = true;
  return task;
}

inline praxen::Ref<praxen::Task> SlowTask() {
  return praxen::ObjectFactory::NewTask1("Slow", 1000, praxen::pxTaskPriority3, 50,
                                         praxen::pxUpdateFirst);
}

inline praxen::Ref<praxen::ExecutionOrder> Order() {
  const auto order = praxen::ObjectFactory::NewExecutionOrder();
  const auto fast = order->Add1("Fast");
  fast->Add1("LevelControl");
  fast->Add1("Interlocks");
  fast->Add1("P101");
  order->Add1("Slow")->Add1("StartSequence");
  return order;
}

/// The dots in the names make groups: the document has Tank, and T101 in it.
inline praxen::Ref<praxen::ProjectConstants> Constants() {
  const auto constants = praxen::ObjectFactory::NewProjectConstants();
  constants->Add1("Tank.T101.Height", "real", "5.0");
  constants->Add1("Tank.T101.Area", "real", "1.77");
  constants->Add1("Pump.RestartDelay", "time", "30s");
  return constants;
}

inline praxen::Ref<praxen::AccessVariables> Access() {
  const auto access = praxen::ObjectFactory::NewAccessVariables();
  const auto named = access->VAProtocols->AddVANamedProtocol1("MMS");
  named->Add2("TankLevel", "TankFarm.LT101.Value", "ReadOnly", 1);
  named->Add1("Setpoint", "TankFarm.LevelControl.Setpoint");
  const auto addressed = access->VAProtocols->AddVAAddressedProtocol1("Serial");
  addressed->Add1("40001", "TankFarm.LT101.Value");
  return access;
}

inline praxen::Ref<praxen::ConnectedLibraries> Libraries() {
  const auto libraries = praxen::ObjectFactory::NewConnectedLibraries();
  libraries->Add2("BasicLib", 1, 8, 3);
  libraries->Add1("PumpLib");
  return libraries;
}

inline praxen::Ref<praxen::ApplicationVariables> Variables() {
  const auto variables = praxen::ObjectFactory::NewApplicationVariables("Variables of TankFarm");
  variables->GlobalVariables->Add2("PlantMode", "dint", "retain", "0", "", "Engineer",
                                   "0 = off, 1 = manual, 2 = auto");
  for (const char* const measured : {"LT101", "FT101"}) {
    variables->Variables->Add1(measured, "RealIO");
  }
  for (const char* const driven : {"P101_Start", "V101_Open", "V102_Open"}) {
    variables->Variables->Add1(driven, "BoolIO");
  }
  variables->Variables->Add1("P101_Status", "PumpStatus");
  return variables;
}

inline praxen::Ref<praxen::ApplicationProperties> Properties() {
  return praxen::ObjectFactory::NewApplicationProperties("SIL2", false);
}

}  // namespace plant

#endif  // PRAXEN_EXAMPLES_PLANT_APPLICATION_H_
