// The members of VAProtocols, and the descriptions of protocols and their variables.
#include "praxen/model/application/va_protocols.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

namespace {

template <auto Add, class Protocol>
Member Adding() {
  return method<Add>("Appends the protocol.", {TypeName<Protocol>()});
}
template <auto Add, class Form>
Member Creating() {
  return method<Add>("Creates a protocol with the given values and appends it.",
                     Form::ParameterNames());
}

}  // namespace

Members VAProtocols::members() {
  return Members{Adding<&VAProtocols::AddVANamedProtocol, VANamedProtocol>(),
                 Creating<&VAProtocols::AddVANamedProtocol1, VANamedProtocol::Form>(),
                 Adding<&VAProtocols::AddVAAddressedProtocol, VAAddressedProtocol>(),
                 Creating<&VAProtocols::AddVAAddressedProtocol1, VAAddressedProtocol::Form>()} +
         lookups() + additions() + positions();
}

Layout VAProtocols::layout() {
  return {
      .elements = {choice<VANamedProtocol, IVAProtocol, &IVAProtocol::IsVANamedProtocol>(),
                   choice<VAAddressedProtocol, IVAProtocol, &IVAProtocol::IsVAAddressedProtocol>()},
      .container = Container::None};
}

template const ClassDescription& describe::Describe<IVAProtocol>();
template const ClassDescription& describe::Describe<VANamedVariable>();
template const ClassDescription& describe::Describe<VAAddressedVariable>();
template const ClassDescription& describe::Describe<VANamedProtocol>();
template const ClassDescription& describe::Describe<VAAddressedProtocol>();
template const ClassDescription& describe::Describe<VAProtocols>();

}  // namespace praxen
