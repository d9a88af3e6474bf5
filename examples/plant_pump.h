// The pump: what it tells of itself, its type, and the one pump P101.
#ifndef PRAXEN_EXAMPLES_PLANT_PUMP_H_
#define PRAXEN_EXAMPLES_PLANT_PUMP_H_

#include "praxen/praxen.h"

namespace plant {

inline praxen::Ref<praxen::DataType> PumpStatus() {
  const auto type =
      praxen::ObjectFactory::NewDataType(u"PumpStatus", u"What a pump tells of itself");
  type->Components->Add2(u"Running", u"bool", u"retain", u"false", u"The contactor is closed");
  type->Components->Add2(u"Fault", u"bool", u"retain", u"false", u"The motor protection tripped");
  type->Components->Add2(u"Hours", u"real", u"coldretain", u"0.0", u"Hours of operation");
  return type;
}

inline praxen::Ref<praxen::ControlModuleType> PumpType() {
  using praxen::ObjectFactory;
  const auto type = ObjectFactory::NewControlModuleType(u"PumpUnit", u"A pump with its contactor");
  type->AlarmOwner = true;
  type->CMParameters->Add1(u"Name", u"string");
  type->CMParameters->Add2(u"Start", u"bool", u"false", u"", u"Operate",
                           u"Runs the pump while it is true",
                           ObjectFactory::NewAutoPoint(praxen::pxLeft));
  const auto status = type->CMParameters->Add2(u"Status", u"PumpStatus", u"", u"", u"", u"",
                                               ObjectFactory::NewAutoPoint(praxen::pxRight));
  status->Direction = u"out";
  type->Variables->Add1(u"Feedback", u"BoolIO");
  type->FunctionBlocks->Add1(u"Supervision", u"TON");
  type->CodeBlocks->AddSTCodeBlock2(
      u"Run",
      u"Supervision(IN := Start AND NOT Feedback.Value, PT := t#5s);\n"
      u"IF Supervision.Q THEN\n"
      u"  Status.Fault := true; (* no feedback after 5 s *)\n"
      u"END_IF;\n"
      u"Status.Running := Start & NOT Status.Fault;");
  return type;
}

inline praxen::Ref<praxen::ControlModule> Pump() {
  const auto pump = praxen::ObjectFactory::NewControlModule(u"P101", u"PumpUnit");
  pump->Description = u"Feed pump of tank T101";
  pump->TaskConnection = u"Fast";
  pump->CMConnections->Add1(u"Name", u"'P101'");
  const auto start = pump->CMConnections->Add2(u"Start", u"P101_Start", true);
  start->Points->Add1(-0.8, 0.25);
  start->Points->Add1(-0.8, 0.6);
  pump->CMConnections->Add1(u"Status", u"P101_Status");
  pump->GraphPos->XPos = -0.5;
  pump->GraphPos->XScale = 0.1;
  pump->GraphPos->YScale = 0.1;
  return pump;
}

}  // namespace plant

#endif  // PRAXEN_EXAMPLES_PLANT_PUMP_H_
