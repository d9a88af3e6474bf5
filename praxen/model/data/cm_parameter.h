// CMParameter, a parameter of a control module type, and the list of them.
#ifndef PRAXEN_MODEL_DATA_CM_PARAMETER_H_
#define PRAXEN_MODEL_DATA_CM_PARAMETER_H_

#include "praxen/model/data/auto_point.h"
#include "praxen/model/data/graph_node.h"

namespace praxen {

class CMParameter final : public describe::Serializable<CMParameter> {
 public:
  Text Name, TypeName, InitialValue, Description, ReadPermission, WritePermission;
  Text AuthenticationLevel = u"None"_text;
  Text BatchProperty;
  Ref<praxen::AutoPoint> AutoPoint;
  Ref<praxen::GraphNodes> GraphNodes = New<praxen::GraphNodes>();
  ReadOnly<Text> TypeGuid, TypePath;
  Text AccessLevel, SafetyType;
  Text Direction = u"unspecified"_text;
  Text FDPort = u"yes"_text;

  static constexpr std::string_view kHelp = "A parameter of a control module type.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&CMParameter::Name>("Name of the parameter; required for writing."),
        property<&CMParameter::TypeName>("Data type; required for writing."),
        property<&CMParameter::InitialValue>("Value at start."),
        property<&CMParameter::Description>("Free text."),
        property<&CMParameter::ReadPermission>("Permission that reading needs."),
        property<&CMParameter::WritePermission>("Permission that writing needs."),
        property<&CMParameter::AuthenticationLevel>("Authentication that writing needs."),
        property<&CMParameter::BatchProperty>("Meaning of the parameter for batch control."),
        property<&CMParameter::AutoPoint>(
            "Side at which the parameter is connected; nothing when none is chosen."),
        property<&CMParameter::GraphNodes>("Graph nodes of the parameter."),
        property<&CMParameter::TypeGuid>(
            "GUID of the data type, as the engineering tool found it."),
        property<&CMParameter::TypePath>(
            "Path of the data type, as the engineering tool found it."),
        serialize(),
        property<&CMParameter::AccessLevel>("Access level for safety."),
        property<&CMParameter::SafetyType>("Safety type."),
        property<&CMParameter::Direction>("Direction as a free text, such as in or out."),
        property<&CMParameter::FDPort>(
            "Whether function diagrams show the parameter as a port; yes or no."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&CMParameter::Name>(), required<&CMParameter::TypeName>(u"Type"),
                       optional<&CMParameter::Direction>(), optional<&CMParameter::FDPort>(),
                       optional<&CMParameter::InitialValue>(),
                       optional<&CMParameter::ReadPermission>(),
                       optional<&CMParameter::WritePermission>(),
                       optional<&CMParameter::AuthenticationLevel>(),
                       readOnly<&CMParameter::TypeGuid>(), readOnly<&CMParameter::TypePath>(),
                       optional<&CMParameter::BatchProperty>(),
                       optional<&CMParameter::AccessLevel>(), optional<&CMParameter::SafetyType>()},
        .children = {text<&CMParameter::Description>(), object<&CMParameter::AutoPoint>(),
                     items<&CMParameter::GraphNodes>()}};
  }
  using Form = describe::Creation<CMParameter, &CMParameter::Name, &CMParameter::TypeName>;
  using LongForm = describe::Extended<Form, &CMParameter::InitialValue,
                                      &CMParameter::ReadPermission, &CMParameter::WritePermission,
                                      &CMParameter::Description, &CMParameter::AutoPoint>;
};

class CMParameters final : public Collection<CMParameters, CMParameter> {
 public:
  static constexpr std::string_view kHelp = "Parameters of a control module type, in order.";
};

extern template const describe::ClassDescription& describe::Describe<CMParameter>();
extern template const describe::ClassDescription& describe::Describe<CMParameters>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_CM_PARAMETER_H_
