// VAProtocols, the protocols of variable access.
#ifndef PRAXEN_MODEL_APPLICATION_VA_PROTOCOLS_H_
#define PRAXEN_MODEL_APPLICATION_VA_PROTOCOLS_H_

#include "praxen/model/application/va_addressed_protocol.h"
#include "praxen/model/application/va_named_protocol.h"

namespace praxen {

class VAProtocols final : public Collection<VAProtocols, IVAProtocol> {
 public:
  void AddVANamedProtocol(const Ref<VANamedProtocol>& protocol) { Add(protocol); }
  Ref<VANamedProtocol> AddVANamedProtocol1(const Text& Name) {
    return describe::Addition<VAProtocols, VANamedProtocol::Form>::Run(*this, Name);
  }
  void AddVAAddressedProtocol(const Ref<VAAddressedProtocol>& protocol) { Add(protocol); }
  Ref<VAAddressedProtocol> AddVAAddressedProtocol1(const Text& Name) {
    return describe::Addition<VAProtocols, VAAddressedProtocol::Form>::Run(*this, Name);
  }

  static constexpr std::string_view kHelp = "Protocols of both kinds, in order.";
  static constexpr std::string_view kArgument = "iva";
  static describe::Members members();
  static describe::Layout layout();
};

extern template const describe::ClassDescription& describe::Describe<VAProtocols>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_VA_PROTOCOLS_H_
