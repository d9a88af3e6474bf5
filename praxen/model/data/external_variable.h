// ExternalVariable, a variable declared outside the type that uses it, and the list of them.
#ifndef PRAXEN_MODEL_DATA_EXTERNAL_VARIABLE_H_
#define PRAXEN_MODEL_DATA_EXTERNAL_VARIABLE_H_

#include "praxen/model/data/graph_node.h"

namespace praxen {

class ExternalVariable final : public describe::Serializable<ExternalVariable> {
 public:
  Text Name, TypeName, PXAttribute, Description, ReadPermission, WritePermission;
  Text AuthenticationLevel = u"None"_text;
  Ref<praxen::GraphNodes> GraphNodes = New<praxen::GraphNodes>();
  ReadOnly<Text> TypeGuid, TypePath;
  Text AccessLevel, SafetyType;

  static constexpr std::string_view kHelp = "A variable declared outside the type that uses it.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&ExternalVariable::Name>("Name of the variable; required for writing."),
        property<&ExternalVariable::TypeName>("Data type; required for writing."),
        property<&ExternalVariable::PXAttribute>("Attributes such as retain or constant."),
        property<&ExternalVariable::Description>("Free text."),
        property<&ExternalVariable::ReadPermission>("Permission that reading needs."),
        property<&ExternalVariable::WritePermission>("Permission that writing needs."),
        property<&ExternalVariable::AuthenticationLevel>("Authentication that writing needs."),
        property<&ExternalVariable::GraphNodes>("Graph nodes of the variable."),
        property<&ExternalVariable::TypeGuid>(
            "GUID of the data type, as the engineering tool found it."),
        property<&ExternalVariable::TypePath>(
            "Path of the data type, as the engineering tool found it."),
        serialize(),
        property<&ExternalVariable::AccessLevel>("Access level for safety."),
        property<&ExternalVariable::SafetyType>("Safety type."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&ExternalVariable::Name>(),
                           required<&ExternalVariable::TypeName>(u"Type"),
                           always<&ExternalVariable::PXAttribute>(u"Attribute"),
                           optional<&ExternalVariable::ReadPermission>(),
                           optional<&ExternalVariable::WritePermission>(),
                           optional<&ExternalVariable::AuthenticationLevel>(),
                           readOnly<&ExternalVariable::TypeGuid>(),
                           readOnly<&ExternalVariable::TypePath>(),
                           optional<&ExternalVariable::AccessLevel>(),
                           optional<&ExternalVariable::SafetyType>()},
            .children = {text<&ExternalVariable::Description>(),
                         items<&ExternalVariable::GraphNodes>()}};
  }
  using Form =
      describe::Creation<ExternalVariable, &ExternalVariable::Name, &ExternalVariable::TypeName>;
  using LongForm =
      describe::Extended<Form, &ExternalVariable::PXAttribute, &ExternalVariable::ReadPermission,
                         &ExternalVariable::WritePermission, &ExternalVariable::Description>;
};

class ExternalVariables final : public Collection<ExternalVariables, ExternalVariable> {
 public:
  static constexpr std::string_view kHelp = "External variables, in order.";
};

extern template const describe::ClassDescription& describe::Describe<ExternalVariable>();
extern template const describe::ClassDescription& describe::Describe<ExternalVariables>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_EXTERNAL_VARIABLE_H_
