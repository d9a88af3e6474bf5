// VANamedVariable, a variable that is published under a name.
#ifndef PRAXEN_MODEL_APPLICATION_VA_NAMED_VARIABLE_H_
#define PRAXEN_MODEL_APPLICATION_VA_NAMED_VARIABLE_H_

#include "praxen/model/application/va_variable.h"

namespace praxen {

class VANamedVariable final : public VAVariable<VANamedVariable> {
 public:
  Text VAAttribute;

  static constexpr std::string_view kHelp = "A variable that is published under a name.";
  static describe::Members members() {
    using namespace describe;
    describe::Members members = VAVariable::members();
    members.insert(members.begin() + 2, property<&VANamedVariable::VAAttribute>(
                                            "Attribute such as that of reading only."));
    return members;
  }
  static describe::Layout layout() {
    using namespace describe;
    describe::Layout layout = VAVariable::layout();
    layout.attributes.insert(layout.attributes.begin() + 2,
                             optional<&VANamedVariable::VAAttribute>(u"Attribute"));
    return layout;
  }
  using LongForm = describe::Extended<Form, &VANamedVariable::VAAttribute, &VANamedVariable::Row>;
};

extern template const describe::ClassDescription& describe::Describe<VANamedVariable>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_VA_NAMED_VARIABLE_H_
