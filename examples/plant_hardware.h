// The controller with its modules, and which variable each channel is connected to.
#ifndef PRAXEN_EXAMPLES_PLANT_HARDWARE_H_
#define PRAXEN_EXAMPLES_PLANT_HARDWARE_H_

#include "praxen/praxen.h"

namespace plant {

inline void AddAnalogInputs(praxen::HWUnits& modules) {
  const auto inputs = modules.Add2(u"0.11.1", u"AI8", u"Analog inputs, 8 channels", u"");
  inputs->ParameterSettings->Add1(u"Signal range", u"4..20 mA");
  praxen::HWChannels& channels = *inputs->HWChannels;
  channels.Add2(u"IW0.11.1.1", u"Input 1", u"TankFarm.LT101", u"Level of tank T101", u"0", u"5",
                u"m", u"2", false);
  channels.Add2(u"IW0.11.1.2", u"Input 2", u"TankFarm.FT101", u"Flow into tank T101", u"0", u"60",
                u"m3/h", u"1", false);
}

inline void AddDigitalOutputs(praxen::HWUnits& modules) {
  const auto outputs = modules.Add2(u"0.11.2", u"DO16", u"Digital outputs, 16 channels", u"");
  outputs->HWSimulationSupported = true;
  praxen::HWChannels& channels = *outputs->HWChannels;
  channels.Add1(u"QX0.11.2.1", u"Output 1", u"TankFarm.P101_Start", u"Contactor of pump P101");
  channels.Add1(u"QX0.11.2.2", u"Output 2", u"TankFarm.V101_Open", u"Inlet valve V101");
  channels.Add1(u"QX0.11.2.3", u"Output 3", u"TankFarm.V102_Open", u"Outlet valve V102")->Reversed =
      true;
}

inline praxen::Ref<praxen::HWUnit> Hardware() {
  const auto controller =
      praxen::ObjectFactory::NewHWUnit1(u"0", u"CPU_M1", u"Controller of the tank farm", u"");
  controller->InstanceName = u"Controller_1";
  controller->ParameterSettings->Add1(u"IP address", u"192.0.2.10");
  const auto bus = controller->HWUnits->Add2(u"0.11", u"IOBUS", u"Bus of the modules", u"");
  AddAnalogInputs(*bus->HWUnits);
  AddDigitalOutputs(*bus->HWUnits);
  return controller;
}

}  // namespace plant

#endif  // PRAXEN_EXAMPLES_PLANT_HARDWARE_H_
