// AccessVariables, the variables that other systems reach over protocols.
#ifndef PRAXEN_MODEL_APPLICATION_ACCESS_VARIABLES_H_
#define PRAXEN_MODEL_APPLICATION_ACCESS_VARIABLES_H_

#include "praxen/model/application/va_protocols.h"

namespace praxen {

class AccessVariables final : public describe::Serializable<AccessVariables> {
 public:
  Ref<praxen::VAProtocols> VAProtocols = New<praxen::VAProtocols>();

  static constexpr std::string_view kHelp =
      "The variables that other systems reach over protocols.";
  static constexpr const char16_t* kElement = u"Varaccess";
  static describe::Members members() {
    using namespace describe;
    return {property<&AccessVariables::VAProtocols>("The protocols."), serialize()};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.children = {items<&AccessVariables::VAProtocols>()}};
  }
};

extern template const describe::ClassDescription& describe::Describe<AccessVariables>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_ACCESS_VARIABLES_H_
