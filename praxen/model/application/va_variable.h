// The variables of protocols: VANamedVariable and VAAddressedVariable.
#ifndef PRAXEN_MODEL_APPLICATION_VA_VARIABLE_H_
#define PRAXEN_MODEL_APPLICATION_VA_VARIABLE_H_

#include "praxen/describe/creation.h"
#include "praxen/describe/description.h"

namespace praxen::detail {

/// A variable that other systems reach over a protocol.
template <class Class>
class VAVariable : public Described<Class> {
 public:
  using T = VAVariable;

  Text Name, Path;
  Text VAType = u"Unknown"_text;
  int32_t Row = 0;
  ReadOnly<Text> VATypePath;

  static describe::Members members() {
    using namespace describe;
    return {property<&T::Name>("Name or address."),
            property<&T::Path>("Path of the variable in the project."),
            property<&T::VAType>("Data type."),
            property<&T::Row>("Number of the row in the protocol's table."),
            property<&T::VATypePath>("Path of the data type.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), always<&T::Path>(),
                           ReadIfPresent(unlessEmpty<&T::VAType>()),
                           ReadIfPresent(always<&T::Row>()), readOnly<&T::VATypePath>()}};
  }

 protected:
  /// Creating operations spell the type that is not known otherwise than a new object.
  struct UnknownType {
    static void Prepare(Class& variable) { variable.VAType = u"unknown"_text; }
  };

 public:
  using Form = describe::PreparedCreation<Class, UnknownType, &T::Name, &T::Path>;
};

}  // namespace praxen::detail

namespace praxen {

class VANamedVariable final : public detail::VAVariable<VANamedVariable> {
 public:
  using T = VANamedVariable;

  Text VAAttribute;

  static constexpr std::string_view kHelp = "A variable that is published under a name.";
  static describe::Members members() {
    using namespace describe;
    describe::Members members = VAVariable::members();
    members.insert(members.begin() + 2,
                   property<&T::VAAttribute>("Attribute such as that of reading only."));
    return members;
  }
  static describe::Layout layout() {
    using namespace describe;
    describe::Layout layout = VAVariable::layout();
    layout.attributes.insert(layout.attributes.begin() + 2,
                             optional<&T::VAAttribute>(u"Attribute"));
    return layout;
  }
  using LongForm = describe::Extended<Form, &T::VAAttribute, &T::Row>;
};

class VAAddressedVariable final : public detail::VAVariable<VAAddressedVariable> {
 public:
  static constexpr std::string_view kHelp = "A variable that is published at an address.";
  using LongForm = describe::Extended<Form, &T::Row>;
};

extern template struct describe::Published<VANamedVariable>;
extern template struct describe::Published<VAAddressedVariable>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_VA_VARIABLE_H_
