// Samples of variables, parameters, data types and signals.
#include "praxen/factory/object_factory.h"
#include "tools/praxen/samples.h"

namespace praxen::detail {

namespace {

Ref<SerializableObject> BuildVariable() {
  const auto variable =
      ObjectFactory::NewVariable1(u"LevelSetpoint", u"real", u"coldretain", u"2.5", u"Read",
                                  u"Operate", u"Level of tank T101 to be kept, in metres");
  variable->AuthenticationLevel = u"Reauthenticate";
  variable->GraphNodes->Add1(u"Setpoint", -0.8, 0.25);
  variable->GraphNodes->Add1(u"Trend", 0.8, 0.25);
  return variable;
}

Ref<SerializableObject> BuildGlobalVariable() {
  const auto variable = ObjectFactory::NewGlobalVariable1(
      u"PlantMode", u"dint", u"retain", u"0", u"", u"Engineer", u"0 = off, 1 = manual, 2 = auto");
  variable->AccessLevel = u"ReadOnly";
  return variable;
}

Ref<SerializableObject> BuildExternalVariable() {
  return ObjectFactory::NewExternalVariable1(u"PlantMode", u"dint", u"", u"Read", u"",
                                             u"The application's mode of operation");
}

Ref<SerializableObject> BuildCommVariable() {
  const auto variable = ObjectFactory::NewCommVariable1(
      u"FeedFlow", u"RealIO", u"in", u"retain", u"0.0", u"0.0", u"high", u"fast", u"Read",
      u"Flow into tank T101, from the controller of the feed station");
  variable->IPAddress = u"192.0.2.17";
  variable->ExpectedSIL = u"SIL2";
  variable->UniqueID = 4711;
  variable->AcknowledgeGroup = u"1";
  return variable;
}

Ref<SerializableObject> BuildParameter() {
  const auto parameter =
      ObjectFactory::NewParameter1(u"Start", u"bool", u"retain", pxIn, u"false", u"", u"Operate",
                                   u"Starts the pump while it is true");
  parameter->FDPort = u"no";
  return parameter;
}

Ref<SerializableObject> BuildExtensibleParameter() {
  return ObjectFactory::NewExtensibleParameter1(u"Permit", u"bool", u"", pxIn, u"true",
                                                u"One of any number of permits to start");
}

Ref<SerializableObject> BuildCMParameter() {
  const auto parameter =
      ObjectFactory::NewCMParameter1(u"Level", u"RealIO", u"", u"Read", u"", u"Measured level",
                                     ObjectFactory::NewAutoPoint(pxLeft));
  parameter->Direction = u"in";
  parameter->GraphNodes->Add1(u"Level", -1, 0.5);
  return parameter;
}

Ref<SerializableObject> BuildDataType() {
  const auto type = ObjectFactory::NewDataType1(u"PumpStatus", u"What a pump tells of itself",
                                                false, false, pxPublic);
  type->Components->Add1(u"Running", u"bool");
  type->Components->Add2(u"Speed", u"real", u"retain", u"0.0", u"In per cent");
  const auto hours =
      type->Components->Add2(u"Hours", u"dint", u"coldretain", u"0", u"Hours of operation");
  hours->WritePermission = u"Maintain";
  return type;
}

Ref<SerializableObject> BuildSignal() {
  const auto signal = ObjectFactory::NewSignal(u"P101_Fault", u"Plant.P101.Fault", u"out", 2);
  signal->Description = u"Goes to the alarm panel <north & south>";
  return signal;
}

constexpr SampleFamily kFamilies[] = {
    {"variable", &BuildVariable},
    {"global-variable", &BuildGlobalVariable},
    {"external-variable", &BuildExternalVariable},
    {"comm-variable", &BuildCommVariable},
    {"parameter", &BuildParameter},
    {"extensible-parameter", &BuildExtensibleParameter},
    {"cm-parameter", &BuildCMParameter},
    {"data-type", &BuildDataType},
    {"signal", &BuildSignal},
};

}  // namespace

std::span<const SampleFamily> DataSamples() { return kFamilies; }

}  // namespace praxen::detail
