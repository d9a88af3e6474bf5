// ParameterSetting, the value of a parameter of a hardware unit, and the list of them.
#ifndef PRAXEN_MODEL_HARDWARE_PARAMETER_SETTING_H_
#define PRAXEN_MODEL_HARDWARE_PARAMETER_SETTING_H_

#include "praxen/model/collection.h"

namespace praxen {

class ParameterSetting final : public describe::Described<ParameterSetting> {
 public:
  Text Name, ParameterValue;
  ReadOnly<Text> Description;

  static constexpr std::string_view kHelp = "The value of a parameter of a hardware unit.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::Name>("Name of the parameter."),
        property<&T::ParameterValue>("Value of the parameter."),
        property<&T::Description>("Meaning of the parameter, as the engineering tool tells it.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), always<&T::ParameterValue>(u"Value"),
                           readOnly<&T::Description>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::ParameterValue>;
};

class ParameterSettings final : public Collection<ParameterSettings, ParameterSetting> {
 public:
  static constexpr std::string_view kHelp = "The parameter settings of a hardware unit, in order.";
  static constexpr std::string_view kArgument = "par";
  static describe::Members members() {
    using namespace describe;
    return Members{add(), creation<ParameterSetting::Form>("Add1")} + lookups() + positions();
  }
};

extern template struct describe::Published<ParameterSetting>;
extern template struct describe::Published<ParameterSettings>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_HARDWARE_PARAMETER_SETTING_H_
