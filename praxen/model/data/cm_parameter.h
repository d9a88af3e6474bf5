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
        property<&T::Name>("Name of the parameter."),
        property<&T::TypeName>("Data type."),
        property<&T::InitialValue>("Value at start."),
        property<&T::Description>("Free text."),
        property<&T::ReadPermission>("Permission that reading needs."),
        property<&T::WritePermission>("Permission that writing needs."),
        property<&T::AuthenticationLevel>("Authentication that writing needs."),
        property<&T::BatchProperty>("Meaning of the parameter for batch control."),
        property<&T::AutoPoint>(
            "Side at which the parameter is connected; nothing when none is chosen."),
        property<&T::GraphNodes>("Graph nodes of the parameter."),
        property<&T::TypeGuid>("GUID of the data type."),
        property<&T::TypePath>("Path of the data type."),
        serialize(),
        property<&T::AccessLevel>("Access level for safety."),
        property<&T::SafetyType>("Safety type."),
        property<&T::Direction>("Direction as a free text, such as in or out."),
        property<&T::FDPort>("Whether function diagrams show the parameter as a port; yes or no."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&T::Name>(), required<&T::TypeName>(u"Type"),
                       optional<&T::Direction>(), optional<&T::FDPort>(),
                       optional<&T::InitialValue>(), optional<&T::ReadPermission>(),
                       optional<&T::WritePermission>(), optional<&T::AuthenticationLevel>(),
                       readOnly<&T::TypeGuid>(), readOnly<&T::TypePath>(),
                       optional<&T::BatchProperty>(), optional<&T::AccessLevel>(),
                       optional<&T::SafetyType>()},
        .children = {text<&T::Description>(), object<&T::AutoPoint>(), items<&T::GraphNodes>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::TypeName>;
  using LongForm = describe::Extended<Form, &T::InitialValue, &T::ReadPermission,
                                      &T::WritePermission, &T::Description, &T::AutoPoint>;
};

class CMParameters final : public Collection<CMParameters, CMParameter> {
 public:
  static constexpr std::string_view kHelp = "Parameters of a control module type, in order.";
};

extern template struct describe::Published<CMParameter>;
extern template struct describe::Published<CMParameters>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_CM_PARAMETER_H_
