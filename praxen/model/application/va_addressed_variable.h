// VAAddressedVariable, a variable that is published at an address.
#ifndef PRAXEN_MODEL_APPLICATION_VA_ADDRESSED_VARIABLE_H_
#define PRAXEN_MODEL_APPLICATION_VA_ADDRESSED_VARIABLE_H_

#include "praxen/model/application/va_variable.h"

namespace praxen {

class VAAddressedVariable final : public VAVariable<VAAddressedVariable> {
 public:
  static constexpr std::string_view kHelp = "A variable that is published at an address.";
  using LongForm = describe::Extended<Form, &VAAddressedVariable::Row>;
};

extern template const describe::ClassDescription& describe::Describe<VAAddressedVariable>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_VA_ADDRESSED_VARIABLE_H_
