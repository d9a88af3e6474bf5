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
        property<&HWUnit::Path>("Position in the hardware tree; required for writing."),
        property<&HWUnit::TypeID>("Identifier of the type."),
        property<&HWUnit::TypeDescription>("Description of the type."),
        property<&HWUnit::Guid>("GUID of the unit."),
        property<&HWUnit::RedundantPos>("Position of the redundant unit."),
        property<&HWUnit::HWSimulation>("Whether the unit is simulated."),
        property<&HWUnit::HWSimulationSupported>("Whether the unit can be simulated."),
        property<&HWUnit::ReservedByFunction>("Function that has reserved the unit."),
        property<&HWUnit::ParameterSettings>("Parameter settings of the unit."),
        property<&HWUnit::HWChannels>("Channels of the unit."),
        property<&HWUnit::HWUnits>("Sub-units of the unit."),
        serialize(),
        property<&HWUnit::TypeGuid>("GUID of the type."),
        property<&HWUnit::InstanceName>("Name of the unit."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&HWUnit::Path>(), always<&HWUnit::TypeID>(),
                       always<&HWUnit::TypeDescription>(), optional<&HWUnit::Guid>(),
                       optional<&HWUnit::TypeGuid>(), optional<&HWUnit::RedundantPos>(),
                       optional<&HWUnit::HWSimulation>(),
                       optional<&HWUnit::HWSimulationSupported>(),
                       optional<&HWUnit::ReservedByFunction>(), optional<&HWUnit::InstanceName>()},
        .children = {list<&HWUnit::ParameterSettings>(), list<&HWUnit::HWChannels>(),
                     list<&HWUnit::HWUnits>()}};
  }
  static constexpr auto key() { return &HWUnit::Path; }
  using Form = describe::Creation<HWUnit, &HWUnit::Path>;
  using LongForm =
      describe::Extended<Form, &HWUnit::TypeID, &HWUnit::TypeDescription, &HWUnit::Guid>;
  using FullForm = describe::Extended<LongForm, &HWUnit::TypeGuid>;
};

class HWUnits final : public Collection<HWUnits, HWUnit> {
 public:
  Ref<HWUnit> Add3(const Text& Path, const Text& TypeID, const Text& TypeDescription,
                   const Text& Guid, const Text& TypeGuid);

  static constexpr std::string_view kHelp = "Hardware units, in order.";
  static constexpr std::string_view kArgument = "hwu";
  static describe::Members members();
  static describe::Layout layout();
};

extern template const describe::ClassDescription& describe::Describe<HWUnits>();
extern template const describe::ClassDescription& describe::Describe<HWUnit>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_HARDWARE_HW_UNIT_H_
