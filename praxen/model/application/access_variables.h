// AccessVariables, the variables that other systems reach over protocols.
#ifndef PRAXEN_MODEL_APPLICATION_ACCESS_VARIABLES_H_
#define PRAXEN_MODEL_APPLICATION_ACCESS_VARIABLES_H_

#include "praxen/model/application/va_protocols.h"

namespace praxen {

class AccessVariables final : public Serializable<AccessVariables> {
 public:
  Ref<praxen::VAProtocols> VAProtocols = New<praxen::VAProtocols>();

  static constexpr std::string_view kHelp =
      "The variables that other systems reach over protocols.";
  static constexpr const char16_t* kElement = u"Varaccess";
  static Members members() {
    return {property<&AccessVariables::VAProtocols>("The protocols."), serialize()};
  }
  static Layout layout() { return {.children = {items<&AccessVariables::VAProtocols>()}}; }
};

extern template const ClassDescription& Describe<AccessVariables>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_ACCESS_VARIABLES_H_
