// Parameter, a parameter of a function block type or diagram type, and the list of them.
#ifndef PRAXEN_MODEL_DATA_PARAMETER_H_
#define PRAXEN_MODEL_DATA_PARAMETER_H_

#include "praxen/model/collection.h"

namespace praxen {

class Parameter final : public describe::Serializable<Parameter> {
 public:
  Text Name, TypeName;
  Text PXAttribute = u"retain"_text;
  DirectionValue Direction = pxIn;
  Text InitialValue, Description, ReadPermission, WritePermission;
  Text AuthenticationLevel = u"None"_text;
  ReadOnly<Text> TypeGuid, TypePath;
  Text AccessLevel, SafetyType;
  Text FDPort = u"yes"_text;

  static constexpr std::string_view kHelp = "A parameter of a function block type or diagram type.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::Name>("Name of the parameter."),
        property<&T::TypeName>("Data type."),
        property<&T::PXAttribute>("Attributes such as retain or constant."),
        property<&T::Direction>("Direction of the parameter."),
        property<&T::InitialValue>("Value at start."),
        property<&T::Description>("Free text."),
        property<&T::ReadPermission>("Permission that reading needs."),
        property<&T::WritePermission>("Permission that writing needs."),
        property<&T::AuthenticationLevel>("Authentication that writing needs."),
        property<&T::TypeGuid>("GUID of the data type."),
        property<&T::TypePath>("Path of the data type."),
        serialize(),
        property<&T::AccessLevel>("Access level for safety."),
        property<&T::SafetyType>("Safety type."),
        property<&T::FDPort>("Whether function diagrams show the parameter as a port; yes or no."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), required<&T::TypeName>(u"Type"),
                           always<&T::PXAttribute>(u"Attribute"), always<&T::Direction>(),
                           optional<&T::FDPort>(), optional<&T::InitialValue>(),
                           optional<&T::ReadPermission>(), optional<&T::WritePermission>(),
                           optional<&T::AuthenticationLevel>(), readOnly<&T::TypeGuid>(),
                           readOnly<&T::TypePath>(), optional<&T::AccessLevel>(),
                           optional<&T::SafetyType>()},
            .children = {strictText<&T::Description>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::TypeName>;
  using LongForm = describe::Extended<Form, &T::PXAttribute, &T::Direction, &T::InitialValue,
                                      &T::ReadPermission, &T::WritePermission, &T::Description>;
};

class Parameters final : public Collection<Parameters, Parameter> {
 public:
  static constexpr std::string_view kHelp = "Parameters, in order.";
};

extern template struct describe::Published<Parameter>;
extern template struct describe::Published<Parameters>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_PARAMETER_H_
