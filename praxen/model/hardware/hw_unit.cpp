// The members of HWUnits, and the descriptions of hardware units.
#include "praxen/model/hardware/hw_unit.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

Ref<HWUnit> HWUnits::Add3(const Text& Path, const Text& TypeID, const Text& TypeDescription,
                          const Text& Guid, const Text& TypeGuid) {
  return Addition<HWUnits, HWUnit::FullForm>::Run(*this, Path, TypeID, TypeDescription, Guid,
                                                  TypeGuid);
}

Members HWUnits::members() {
  return additions() + lookups() + positions() + Members{creation<HWUnit::FullForm>("Add3")};
}

Layout HWUnits::layout() {
  return {.elements = {choice<HWUnit>()}, .container = Container::Always};
}

template const ClassDescription& describe::Describe<ParameterSetting>();
template const ClassDescription& describe::Describe<ParameterSettings>();
template const ClassDescription& describe::Describe<HWUnit>();
template const ClassDescription& describe::Describe<HWUnits>();

}  // namespace praxen
