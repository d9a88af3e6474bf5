// ApplicationProperties, the settings of an application.
#ifndef PRAXEN_MODEL_APPLICATION_APPLICATION_PROPERTIES_H_
#define PRAXEN_MODEL_APPLICATION_APPLICATION_PROPERTIES_H_

#include "praxen/describe/creation.h"
#include "praxen/describe/description.h"

namespace praxen {

class ApplicationProperties final : public describe::Serializable<ApplicationProperties> {
 public:
  Text SILLevel = u"NonSIL"_text;
  bool SimulationMark = false;
  ReadOnly<Text> ApplicationType{u"Normal"_text};

  static constexpr std::string_view kHelp = "The settings of an application.";
  static describe::Members members() {
    using namespace describe;
    return {property<&T::SILLevel>("Safety integrity level."),
            property<&T::SimulationMark>("Whether the application is marked for simulation."),
            serialize(), property<&T::ApplicationType>("Type of the application.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {readOnly<&T::ApplicationType>(u"Type"), optional<&T::SILLevel>(),
                           optional<&T::SimulationMark>()}};
  }
  using Form = describe::Creation<T, &T::SILLevel, &T::SimulationMark>;
};

extern template struct describe::Published<ApplicationProperties>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_APPLICATION_PROPERTIES_H_
