// VANamedProtocol, a protocol whose variables are published under names.
#ifndef PRAXEN_MODEL_APPLICATION_VA_NAMED_PROTOCOL_H_
#define PRAXEN_MODEL_APPLICATION_VA_NAMED_PROTOCOL_H_

#include "praxen/model/application/i_va_protocol.h"
#include "praxen/model/application/va_named_variable.h"

namespace praxen {

class VANamedProtocol final : public VAProtocol<VANamedProtocol, VANamedVariable> {
 public:
  Text Name;

  static constexpr std::string_view kHelp = "A protocol whose variables are published under names.";
  using Form = describe::Creation<VANamedProtocol, &VANamedProtocol::Name>;
};

extern template const describe::ClassDescription& describe::Describe<VANamedProtocol>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_VA_NAMED_PROTOCOL_H_
