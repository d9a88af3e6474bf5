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
        property<&Component::Name>("Name of the component; required for writing."),
        property<&Component::TypeName>("Data type; required for writing."),
        property<&Component::PXAttribute>("Attributes such as retain or constant."),
        property<&Component::InitialValue>("Value at start."),
        property<&Component::ReadPermission>("Permission that reading needs."),
        property<&Component::WritePermission>("Permission that writing needs."),
        property<&Component::AuthenticationLevel>("Authentication that writing needs."),
        property<&Component::Description>("Free text."),
        property<&Component::TypeGuid>("GUID of the data type, as the engineering tool found it."),
        property<&Component::TypePath>("Path of the data type, as the engineering tool found it."),
        property<&Component::AccessLevel>("Access level for safety."),
        property<&Component::SafetyType>("Safety type."),
        property<&Component::ISPValue>("Value that is used when the communication fails."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&Component::Name>(), required<&Component::TypeName>(u"Type"),
                           always<&Component::PXAttribute>(u"Attribute"),
                           optional<&Component::InitialValue>(), optional<&Component::ISPValue>(),
                           optional<&Component::ReadPermission>(),
                           optional<&Component::WritePermission>(),
                           optional<&Component::AuthenticationLevel>(),
                           readOnly<&Component::TypeGuid>(), readOnly<&Component::TypePath>(),
                           optional<&Component::AccessLevel>(), optional<&Component::SafetyType>()},
            .children = {strictText<&Component::Description>()}};
  }
  using Form = describe::Creation<Component, &Component::Name, &Component::TypeName>;
  using LongForm = describe::Extended<Form, &Component::PXAttribute, &Component::InitialValue,
                                      &Component::Description>;
};

class Components final : public Collection<Components, Component> {
 public:
  static constexpr std::string_view kHelp = "Components of a data type, in order.";
};

extern template const describe::ClassDescription& describe::Describe<Component>();
extern template const describe::ClassDescription& describe::Describe<Components>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_COMPONENT_H_
