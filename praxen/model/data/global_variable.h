// GlobalVariable, a global variable of an application, and the list of them.
#ifndef PRAXEN_MODEL_DATA_GLOBAL_VARIABLE_H_
#define PRAXEN_MODEL_DATA_GLOBAL_VARIABLE_H_

#include "praxen/model/data/graph_node.h"

namespace praxen {

class GlobalVariable final : public describe::Serializable<GlobalVariable> {
 public:
  Text Name, TypeName;
  Text PXAttribute = u"retain"_text;
  Text InitialValue, Description, ReadPermission, WritePermission;
  Text AuthenticationLevel = u"None"_text;
  Ref<praxen::GraphNodes> GraphNodes = New<praxen::GraphNodes>();
  ReadOnly<Text> TypeGuid, TypePath;
  Text AccessLevel, SafetyType;

  static constexpr std::string_view kHelp = "A global variable of an application.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::Name>("Name of the variable."),
        property<&T::TypeName>("Data type."),
        property<&T::PXAttribute>("Attributes such as retain or constant."),
        property<&T::InitialValue>("Value at start."),
        property<&T::Description>("Free text."),
        property<&T::ReadPermission>("Permission that reading needs."),
        property<&T::WritePermission>("Permission that writing needs."),
        property<&T::AuthenticationLevel>("Authentication that writing needs."),
        property<&T::GraphNodes>("Graph nodes of the variable."),
        property<&T::TypeGuid>("GUID of the data type."),
        property<&T::TypePath>("Path of the data type."),
        serialize(),
        property<&T::AccessLevel>("Access level for safety."),
        property<&T::SafetyType>("Safety type."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), required<&T::TypeName>(u"Type"),
                           always<&T::PXAttribute>(u"Attribute"), optional<&T::InitialValue>(),
                           optional<&T::ReadPermission>(), optional<&T::WritePermission>(),
                           optional<&T::AuthenticationLevel>(), readOnly<&T::TypeGuid>(),
                           readOnly<&T::TypePath>(), optional<&T::AccessLevel>(),
                           optional<&T::SafetyType>()},
            .children = {text<&T::Description>(), items<&T::GraphNodes>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::TypeName>;
  using LongForm = describe::Extended<Form, &T::PXAttribute, &T::InitialValue, &T::ReadPermission,
                                      &T::WritePermission, &T::Description>;
};

class GlobalVariables final : public Collection<GlobalVariables, GlobalVariable> {
 public:
  static constexpr std::string_view kHelp = "Global variables, in order.";
};

extern template struct describe::Published<GlobalVariable>;
extern template struct describe::Published<GlobalVariables>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_GLOBAL_VARIABLE_H_
