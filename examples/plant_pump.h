// The pump: what it tells of itself, its type, and the one pump P101.
#ifndef PRAXEN_EXAMPLES_PLANT_PUMP_H_
#define PRAXEN_EXAMPLES_PLANT_PUMP_H_

#include "praxen/praxen.h"

namespace plant {

inline praxen::Ref<praxen::DataType> PumpStatus() {
  const auto type = praxen::ObjectFactory::NewDataType("PumpStatus", "What a pump tells of itself");
  type->Components->Add2("Running", "bool", "retain", "false", "The contactor is closed");
  type->Components->Add2("Fault", "bool", "retain", "false", "The motor protection tripped");
  type->Components->Add2("Hours", "real", "coldretain", "0.0", "Hours of operation");
  return type;
}

inline praxen::Ref<praxen::ControlModuleType> PumpType() {
  using praxen::ObjectFactory;
  const auto type = ObjectFactory::NewControlModuleType("PumpUnit", "A pump with its contactor");
  type->AlarmOwner = true;
  type->CMParameters->Add1("Name", "string");
  type->CMParameters->Add2("Start", "bool", "false", "", "Operate",
                           "Runs the pump while it is true",
                           ObjectFactory::NewAutoPoint(praxen::pxLeft));
  const auto status = type->CMParameters->Add2("Status", "PumpStatus", "", "", "", "",
                                               ObjectFactory::NewAutoPoint(praxen::pxRight));
  status->Direction = "out";
  type->Variables->Add1("Feedback", "BoolIO");
  type->FunctionBlocks->Add1("Supervision", "TON");
  type->CodeBlocks->AddSTCodeBlock2("Run",
                                    "Supervision(IN := Start AND NOT Feedback.Value, PT := t#5s);\n"
                                    "IF Supervision.Q THEN\n"
                                    "  Status.Fault := true; (* no feedback after 5 s *)\n"
                                    "END_IF;\n"
                                    "Status.Running := Start & NOT Status.Fault;");
  return type;
}

inline praxen::Ref<praxen::ControlModule> Pump() {
  const auto pump = praxen::ObjectFactory::NewControlModule("P101", "PumpUnit");
  pump->Description = "Feed pump of tank T101";
  pump->TaskConnection = "Fast";
  pump->CMConnections->Add1("Name", "'P101'");
  const auto start = pump->CMConnections->Add2("Start", "P101_Start", true);
  start->Points->Add1(-0.8, 0.25);
  start->Points->Add1(-0.8, 0.6);
  pump->CMConnections->Add1("Status", "P101_Status");
  pump->GraphPos->XPos = -0.5;
  pump->GraphPos->XScale = 0.1;
  pump->GraphPos->YScale = 0.1;
  return pump;
}

}  // namespace plant

#endif  // PRAXEN_EXAMPLES_PLANT_PUMP_H_
