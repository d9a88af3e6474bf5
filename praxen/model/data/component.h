// Component, a component of a structured data type, and the list of them.
#ifndef PRAXEN_MODEL_DATA_COMPONENT_H_
#define PRAXEN_MODEL_DATA_COMPONENT_H_

#include "praxen/model/collection.h"

namespace praxen {

class Component final : public describe::Described<Component> {
 public:
  Text Name, TypeName;
  Text PXAttribute = u"retain"_text;
  Text InitialValue, ReadPermission, WritePermission;
  Text AuthenticationLevel = u"None"_text;
  Text Description;
  ReadOnly<Text> TypeGuid, TypePath;
  Text AccessLevel, SafetyType, ISPValue;

  static constexpr std::string_view kHelp = "A component of a structured data type.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::Name>("Name of the component."),
        property<&T::TypeName>("Data type."),
        property<&T::PXAttribute>("Attributes such as retain or constant."),
        property<&T::InitialValue>("Value at start."),
        property<&T::ReadPermission>("Permission that reading needs."),
        property<&T::WritePermission>("Permission that writing needs."),
        property<&T::AuthenticationLevel>("Authentication that writing needs."),
        property<&T::Description>("Free text."),
        property<&T::TypeGuid>("GUID of the data type."),
        property<&T::TypePath>("Path of the data type."),
        property<&T::AccessLevel>("Access level for safety."),
        property<&T::SafetyType>("Safety type."),
        property<&T::ISPValue>("Value that is used when the communication fails."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), required<&T::TypeName>(u"Type"),
                           always<&T::PXAttribute>(u"Attribute"), optional<&T::InitialValue>(),
                           optional<&T::ISPValue>(), optional<&T::ReadPermission>(),
                           optional<&T::WritePermission>(), optional<&T::AuthenticationLevel>(),
                           readOnly<&T::TypeGuid>(), readOnly<&T::TypePath>(),
                           optional<&T::AccessLevel>(), optional<&T::SafetyType>()},
            .children = {strictText<&T::Description>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::TypeName>;
  using LongForm = describe::Extended<Form, &T::PXAttribute, &T::InitialValue, &T::Description>;
};

class Components final : public Collection<Components, Component> {
 public:
  static constexpr std::string_view kHelp = "Components of a data type, in order.";
};

extern template struct describe::Published<Component>;
extern template struct describe::Published<Components>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_COMPONENT_H_
