// The list of the classes of hardware.
#include "praxen/describe/define.h"
#include "praxen/model/hardware/hw_channel.h"
#include "praxen/model/hardware/hw_unit.h"
#include "praxen/model/hardware/parameter_setting.h"

namespace praxen {

template struct describe::Published<HWChannel>;
template struct describe::Published<HWChannels>;
template struct describe::Published<HWUnit>;
template struct describe::Published<HWUnits>;
template struct describe::Published<ParameterSetting>;
template struct describe::Published<ParameterSettings>;

}  // namespace praxen
