// AccessVariables, the variables that other systems reach over protocols, and the list of these.
#ifndef PRAXEN_MODEL_APPLICATION_ACCESS_VARIABLES_H_
#define PRAXEN_MODEL_APPLICATION_ACCESS_VARIABLES_H_

#include "praxen/model/application/va_protocol.h"

namespace praxen {

class VAProtocols final : public Collection<VAProtocols, IVAProtocol> {
 public:
  void AddVANamedProtocol(const Ref<VANamedProtocol>& protocol) { Add(protocol); }
  Ref<VANamedProtocol> AddVANamedProtocol1(const auto&... arguments) {
    return Create<VANamedProtocol::Form>(arguments...);
  }
  void AddVAAddressedProtocol(const Ref<VAAddressedProtocol>& protocol) { Add(protocol); }
  Ref<VAAddressedProtocol> AddVAAddressedProtocol1(const auto&... arguments) {
    return Create<VAAddressedProtocol::Form>(arguments...);
  }

  static constexpr std::string_view kHelp = "Protocols of both kinds, in order.";
  static constexpr std::string_view kArgument = "iva";
  static describe::Members members() {
    using namespace describe;
    constexpr std::string_view kAppends = "Appends the protocol.";
    constexpr std::string_view kCreates =
        "Creates a protocol with the given values and appends it.";
    return Members{method<&T::AddVANamedProtocol>(kAppends, {"VANamedProtocol"}),
                   creation<VANamedProtocol::Form>("AddVANamedProtocol1", kCreates),
                   method<&T::AddVAAddressedProtocol>(kAppends, {"VAAddressedProtocol"}),
                   creation<VAAddressedProtocol::Form>("AddVAAddressedProtocol1", kCreates)} +
           lookups() + additions() + positions();
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.elements = IVAProtocol::choices(), .container = Container::None};
  }
};

class AccessVariables final : public describe::Serializable<AccessVariables> {
 public:
  Ref<praxen::VAProtocols> VAProtocols = New<praxen::VAProtocols>();

  static constexpr std::string_view kHelp =
      "The variables that other systems reach over protocols.";
  static constexpr const char16_t* kElement = u"Varaccess";
  static describe::Members members() {
    using namespace describe;
    return {property<&T::VAProtocols>("The protocols."), serialize()};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.children = {items<&T::VAProtocols>()}};
  }
};

extern template struct describe::Published<VAProtocols>;
extern template struct describe::Published<AccessVariables>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_ACCESS_VARIABLES_H_
