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
        property<&GlobalVariable::Name>("Name of the variable; required for writing."),
        property<&GlobalVariable::TypeName>("Data type; required for writing."),
        property<&GlobalVariable::PXAttribute>("Attributes such as retain or constant."),
        property<&GlobalVariable::InitialValue>("Value at start."),
        property<&GlobalVariable::Description>("Free text."),
        property<&GlobalVariable::ReadPermission>("Permission that reading needs."),
        property<&GlobalVariable::WritePermission>("Permission that writing needs."),
        property<&GlobalVariable::AuthenticationLevel>("Authentication that writing needs."),
        property<&GlobalVariable::GraphNodes>("Graph nodes of the variable."),
        property<&GlobalVariable::TypeGuid>(
            "GUID of the data type, as the engineering tool found it."),
        property<&GlobalVariable::TypePath>(
            "Path of the data type, as the engineering tool found it."),
        serialize(),
        property<&GlobalVariable::AccessLevel>("Access level for safety."),
        property<&GlobalVariable::SafetyType>("Safety type."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&GlobalVariable::Name>(),
                       required<&GlobalVariable::TypeName>(u"Type"),
                       always<&GlobalVariable::PXAttribute>(u"Attribute"),
                       optional<&GlobalVariable::InitialValue>(),
                       optional<&GlobalVariable::ReadPermission>(),
                       optional<&GlobalVariable::WritePermission>(),
                       optional<&GlobalVariable::AuthenticationLevel>(),
                       readOnly<&GlobalVariable::TypeGuid>(), readOnly<&GlobalVariable::TypePath>(),
                       optional<&GlobalVariable::AccessLevel>(),
                       optional<&GlobalVariable::SafetyType>()},
        .children = {text<&GlobalVariable::Description>(), items<&GlobalVariable::GraphNodes>()}};
  }
  using Form = describe::Creation<GlobalVariable, &GlobalVariable::Name, &GlobalVariable::TypeName>;
  using LongForm =
      describe::Extended<Form, &GlobalVariable::PXAttribute, &GlobalVariable::InitialValue,
                         &GlobalVariable::ReadPermission, &GlobalVariable::WritePermission,
                         &GlobalVariable::Description>;
};

class GlobalVariables final : public Collection<GlobalVariables, GlobalVariable> {
 public:
  static constexpr std::string_view kHelp = "Global variables, in order.";
};

extern template const describe::ClassDescription& describe::Describe<GlobalVariable>();
extern template const describe::ClassDescription& describe::Describe<GlobalVariables>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_GLOBAL_VARIABLE_H_
