// The controller with its modules, and which variable each channel is connected to.
#ifndef PRAXEN_EXAMPLES_PLANT_HARDWARE_H_
#define PRAXEN_EXAMPLES_PLANT_HARDWARE_H_

#include "praxen/praxen.h"

namespace plant {

inline void AddAnalogInputs(praxen::HWUnits& modules) {
  const auto inputs = modules.Add2("0.11.1", "AI8", "Analog inputs, 8 channels", "");
  inputs->ParameterSettings->Add1("Signal range", "4..20 mA");
  praxen::HWChannels& channels = *inputs->HWChannels;
  channels.Add2("IW0.11.1.1", "Input 1", "TankFarm.LT101", "Level of tank T101", "0", "5", "m", "2",
                false);
  channels.Add2("IW0.11.1.2", "Input 2", "TankFarm.FT101", "Flow into tank T101", "0", "60", "m3/h",
                "1", false);
}

inline void AddDigitalOutputs(praxen::HWUnits& modules) {
  const auto outputs = modules.Add2("0.11.2", "DO16", "Digital outputs, 16 channels", "");
  outputs->HWSimulationSupported = true;
  praxen::HWChannels& channels = *outputs->HWChannels;
  channels.Add1("QX0.11.2.1", "Output 1", "TankFarm.P101_Start", "Contactor of pump P101");
  channels.Add1("QX0.11.2.2", "Output 2", "TankFarm.V101_Open", "Inlet valve V101");
  channels.Add1("QX0.11.2.3", "Output 3", "TankFarm.V102_Open", "Outlet valve V102")->Reversed =
      true;
}

inline praxen::Ref<praxen::HWUnit> Hardware() {
  const auto controller =
      praxen::ObjectFactory::NewHWUnit1("0", "CPU_M1", "Controller of the tank farm", "");
  controller->InstanceName = "Controller_1";
  controller->ParameterSettings->Add1("IP address", "192.0.2.10");
  const auto bus = controller->HWUnits->Add2("0.11", "IOBUS", "Bus of the modules", "");
  AddAnalogInputs(*bus->HWUnits);
  AddDigitalOutputs(*bus->HWUnits);
  return controller;
}

}  // namespace plant

#endif  // PRAXEN_EXAMPLES_PLANT_HARDWARE_H_
