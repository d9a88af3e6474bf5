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
    return {property<&ApplicationProperties::SILLevel>("Safety integrity level."),
            property<&ApplicationProperties::SimulationMark>(
                "Whether the application is marked for simulation."),
            serialize(),
            property<&ApplicationProperties::ApplicationType>(
                "Type of the application, as the engineering tool found it.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {readOnly<&ApplicationProperties::ApplicationType>(u"Type"),
                           optional<&ApplicationProperties::SILLevel>(),
                           optional<&ApplicationProperties::SimulationMark>()}};
  }
  using Form = describe::Creation<ApplicationProperties, &ApplicationProperties::SILLevel,
                                  &ApplicationProperties::SimulationMark>;
};

extern template const describe::ClassDescription& describe::Describe<ApplicationProperties>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_APPLICATION_PROPERTIES_H_
