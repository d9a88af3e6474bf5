// Variable, a variable of a unit or application, and the list of them.
#ifndef PRAXEN_MODEL_DATA_VARIABLE_H_
#define PRAXEN_MODEL_DATA_VARIABLE_H_

#include "praxen/model/data/graph_node.h"

namespace praxen {

class Variable final : public describe::Serializable<Variable> {
 public:
  Text Name, TypeName;
  Text PXAttribute = u"retain"_text;
  Text InitialValue, Description, ReadPermission, WritePermission;
  Text AuthenticationLevel = u"None"_text;
  Text BatchProperty;
  Ref<praxen::GraphNodes> GraphNodes = New<praxen::GraphNodes>();
  ReadOnly<Text> TypeGuid, TypePath;
  Text AccessLevel, SafetyType;

  static constexpr std::string_view kHelp = "A variable of a unit or application.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&Variable::Name>("Name of the variable; required for writing."),
        property<&Variable::TypeName>("Data type; required for writing."),
        property<&Variable::PXAttribute>("Attributes such as retain or constant."),
        property<&Variable::InitialValue>("Value at start."),
        property<&Variable::Description>("Free text."),
        property<&Variable::ReadPermission>("Permission that reading needs."),
        property<&Variable::WritePermission>("Permission that writing needs."),
        property<&Variable::AuthenticationLevel>("Authentication that writing needs."),
        property<&Variable::BatchProperty>("Meaning of the variable for batch control."),
        property<&Variable::GraphNodes>("Graph nodes of the variable."),
        property<&Variable::TypeGuid>("GUID of the data type, as the engineering tool found it."),
        property<&Variable::TypePath>("Path of the data type, as the engineering tool found it."),
        serialize(),
        property<&Variable::AccessLevel>("Access level for safety."),
        property<&Variable::SafetyType>("Safety type."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&Variable::Name>(), required<&Variable::TypeName>(u"Type"),
                       always<&Variable::PXAttribute>(u"Attribute"),
                       optional<&Variable::InitialValue>(), optional<&Variable::ReadPermission>(),
                       optional<&Variable::WritePermission>(),
                       optional<&Variable::AuthenticationLevel>(), readOnly<&Variable::TypeGuid>(),
                       readOnly<&Variable::TypePath>(), optional<&Variable::BatchProperty>(),
                       optional<&Variable::AccessLevel>(), optional<&Variable::SafetyType>()},
        .children = {text<&Variable::Description>(), items<&Variable::GraphNodes>()}};
  }
  using Form = describe::Creation<Variable, &Variable::Name, &Variable::TypeName>;
  using LongForm = describe::Extended<Form, &Variable::PXAttribute, &Variable::InitialValue,
                                      &Variable::ReadPermission, &Variable::WritePermission,
                                      &Variable::Description>;
};

class Variables final : public Collection<Variables, Variable> {
 public:
  static constexpr std::string_view kHelp = "Variables, in order.";
  static constexpr std::string_view kArgument = "var";
};

extern template const describe::ClassDescription& describe::Describe<Variable>();
extern template const describe::ClassDescription& describe::Describe<Variables>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_VARIABLE_H_
