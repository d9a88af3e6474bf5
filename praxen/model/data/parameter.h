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
        property<&Parameter::Name>("Name of the parameter; required for writing."),
        property<&Parameter::TypeName>("Data type; required for writing."),
        property<&Parameter::PXAttribute>("Attributes such as retain or constant."),
        property<&Parameter::Direction>("Direction of the parameter."),
        property<&Parameter::InitialValue>("Value at start."),
        property<&Parameter::Description>("Free text."),
        property<&Parameter::ReadPermission>("Permission that reading needs."),
        property<&Parameter::WritePermission>("Permission that writing needs."),
        property<&Parameter::AuthenticationLevel>("Authentication that writing needs."),
        property<&Parameter::TypeGuid>("GUID of the data type, as the engineering tool found it."),
        property<&Parameter::TypePath>("Path of the data type, as the engineering tool found it."),
        serialize(),
        property<&Parameter::AccessLevel>("Access level for safety."),
        property<&Parameter::SafetyType>("Safety type."),
        property<&Parameter::FDPort>(
            "Whether function diagrams show the parameter as a port; yes or no."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&Parameter::Name>(), required<&Parameter::TypeName>(u"Type"),
                       always<&Parameter::PXAttribute>(u"Attribute"),
                       always<&Parameter::Direction>(), optional<&Parameter::FDPort>(),
                       optional<&Parameter::InitialValue>(), optional<&Parameter::ReadPermission>(),
                       optional<&Parameter::WritePermission>(),
                       optional<&Parameter::AuthenticationLevel>(),
                       readOnly<&Parameter::TypeGuid>(), readOnly<&Parameter::TypePath>(),
                       optional<&Parameter::AccessLevel>(), optional<&Parameter::SafetyType>()},
        .children = {strictText<&Parameter::Description>()}};
  }
  using Form = describe::Creation<Parameter, &Parameter::Name, &Parameter::TypeName>;
  using LongForm = describe::Extended<Form, &Parameter::PXAttribute, &Parameter::Direction,
                                      &Parameter::InitialValue, &Parameter::ReadPermission,
                                      &Parameter::WritePermission, &Parameter::Description>;
};

class Parameters final : public Collection<Parameters, Parameter> {
 public:
  static constexpr std::string_view kHelp = "Parameters, in order.";
};

extern template const describe::ClassDescription& describe::Describe<Parameter>();
extern template const describe::ClassDescription& describe::Describe<Parameters>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_PARAMETER_H_
