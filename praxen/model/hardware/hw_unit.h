// HWUnit, a unit of the hardware configuration, and the list of such units.
#ifndef PRAXEN_MODEL_HARDWARE_HW_UNIT_H_
#define PRAXEN_MODEL_HARDWARE_HW_UNIT_H_

#include "praxen/model/hardware/hw_channel.h"
#include "praxen/model/hardware/parameter_setting.h"

namespace praxen {

class HWUnits;

/// Units form a tree: one that stands somewhere below itself cannot be written.
class HWUnit final : public describe::Serializable<HWUnit> {
 public:
  Text Path, TypeID, TypeDescription, Guid, RedundantPos;
  bool HWSimulation = false, HWSimulationSupported = false;
  Text ReservedByFunction;
  Ref<praxen::ParameterSettings> ParameterSettings = New<praxen::ParameterSettings>();
  Ref<praxen::HWChannels> HWChannels = New<praxen::HWChannels>();
  Ref<praxen::HWUnits> HWUnits = New<praxen::HWUnits>();
  Text TypeGuid, InstanceName;

  static constexpr std::string_view kHelp = "A unit of the hardware configuration.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::Path>("Position in the hardware tree."),
        property<&T::TypeID>("Identifier of the type."),
        property<&T::TypeDescription>("Description of the type."),
        property<&T::Guid>("GUID of the unit."),
        property<&T::RedundantPos>("Position of the redundant unit."),
        property<&T::HWSimulation>("Whether the unit is simulated."),
        property<&T::HWSimulationSupported>("Whether the unit can be simulated."),
        property<&T::ReservedByFunction>("Function that has reserved the unit."),
        property<&T::ParameterSettings>("Parameter settings of the unit."),
        property<&T::HWChannels>("Channels of the unit."),
        property<&T::HWUnits>("Sub-units of the unit."),
        serialize(),
        property<&T::TypeGuid>("GUID of the type."),
        property<&T::InstanceName>("Name of the unit."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&T::Path>(), always<&T::TypeID>(), always<&T::TypeDescription>(),
                       optional<&T::Guid>(), optional<&T::TypeGuid>(), optional<&T::RedundantPos>(),
                       optional<&T::HWSimulation>(), optional<&T::HWSimulationSupported>(),
                       optional<&T::ReservedByFunction>(), optional<&T::InstanceName>()},
        .children = {list<&T::ParameterSettings>(), list<&T::HWChannels>(), list<&T::HWUnits>()}};
  }
  static constexpr auto key() { return &T::Path; }
  using Form = describe::Creation<T, &T::Path>;
  using LongForm = describe::Extended<Form, &T::TypeID, &T::TypeDescription, &T::Guid>;
  using FullForm = describe::Extended<LongForm, &T::TypeGuid>;
};

class HWUnits final : public Collection<HWUnits, HWUnit> {
 public:
  Ref<HWUnit> Add3(const auto&... arguments) { return Create<HWUnit::FullForm>(arguments...); }

  static constexpr std::string_view kHelp = "Hardware units, in order.";
  static constexpr std::string_view kArgument = "hwu";
  static describe::Members members() {
    using namespace describe;
    return additions() + lookups() + positions() + Members{creation<HWUnit::FullForm>("Add3")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.elements = {choice<HWUnit>()}, .container = Container::Always};
  }
};

extern template struct describe::Published<HWUnits>;
extern template struct describe::Published<HWUnit>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_HARDWARE_HW_UNIT_H_
