// VAVariable, the base of the variables of a protocol.
#ifndef PRAXEN_MODEL_APPLICATION_VA_VARIABLE_H_
#define PRAXEN_MODEL_APPLICATION_VA_VARIABLE_H_

#include "praxen/describe/creation.h"
#include "praxen/describe/description.h"

namespace praxen {

/// A variable that other systems reach over a protocol.
template <class Class>
class VAVariable : public describe::Described<Class> {
 public:
  Text Name, Path;
  Text VAType = u"Unknown"_text;
  int32_t Row = 0;
  ReadOnly<Text> VATypePath;

  static describe::Members members() {
    using namespace describe;
    return {property<&VAVariable::Name>("Name or address; required for writing."),
            property<&VAVariable::Path>("Path of the variable in the project."),
            property<&VAVariable::VAType>("Data type."), property<&VAVariable::Row>("Row."),
            property<&VAVariable::VATypePath>(
                "Path of the data type, as the engineering tool found it.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&VAVariable::Name>(), always<&VAVariable::Path>(),
                           ReadIfPresent(unlessEmpty<&VAVariable::VAType>()),
                           ReadIfPresent(always<&VAVariable::Row>()),
                           readOnly<&VAVariable::VATypePath>()}};
  }

 protected:
  /// Creating operations spell the type that is not known otherwise than a new object.
  struct UnknownType {
    static void Prepare(Class& variable) { variable.VAType = u"unknown"_text; }
  };

 public:
  using Form = describe::PreparedCreation<Class, UnknownType, &VAVariable::Name, &VAVariable::Path>;
};

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_VA_VARIABLE_H_
