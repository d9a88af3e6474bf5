// VAAddressedProtocol, a protocol whose variables are published at addresses.
#ifndef PRAXEN_MODEL_APPLICATION_VA_ADDRESSED_PROTOCOL_H_
#define PRAXEN_MODEL_APPLICATION_VA_ADDRESSED_PROTOCOL_H_

#include "praxen/model/application/i_va_protocol.h"
#include "praxen/model/application/va_addressed_variable.h"

namespace praxen {

class VAAddressedProtocol final : public VAProtocol<VAAddressedProtocol, VAAddressedVariable> {
 public:
  Text Name;

  static constexpr std::string_view kHelp =
      "A protocol whose variables are published at addresses.";
  using Form = describe::Creation<VAAddressedProtocol, &VAAddressedProtocol::Name>;
};

extern template const describe::ClassDescription& describe::Describe<VAAddressedProtocol>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_VA_ADDRESSED_PROTOCOL_H_
