// FunctionBlock, an instance of a function block type, and the list of them.
#ifndef PRAXEN_MODEL_POU_FUNCTION_BLOCK_H_
#define PRAXEN_MODEL_POU_FUNCTION_BLOCK_H_

#include "praxen/model/collection.h"

namespace praxen {

class FunctionBlock final : public describe::Serializable<FunctionBlock> {
 public:
  Text Name, TypeName, TaskConnection, Guid, Description;
  ReadOnly<Text> TypeGuid, TypePath;
  bool AspectObject = true;
  Text AccessLevel, SafetyType;
  bool ExposePropertiesInParent = false;

  static constexpr std::string_view kHelp = "An instance of a function block type.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::Name>("Name of the function block."),
        property<&T::TypeName>("Function block type."),
        property<&T::TaskConnection>("Name of the task that runs the function block."),
        property<&T::Guid>("GUID of the instance."),
        property<&T::Description>("Free text."),
        property<&T::TypeGuid>("GUID of the type."),
        property<&T::TypePath>("Path of the type."),
        serialize(),
        property<&T::AspectObject>("Whether the instance is an aspect object."),
        property<&T::AccessLevel>("Access level for safety."),
        property<&T::SafetyType>("Safety type."),
        property<&T::ExposePropertiesInParent>(
            "Whether the parent shows the properties of the instance."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), required<&T::TypeName>(u"Type"),
                           optional<&T::TaskConnection>(), optional<&T::Guid>(),
                           readOnly<&T::TypeGuid>(), readOnly<&T::TypePath>(),
                           optional<&T::AspectObject>(), optional<&T::ExposePropertiesInParent>(),
                           optional<&T::AccessLevel>(), optional<&T::SafetyType>()},
            .children = {strictText<&T::Description>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::TypeName>;
  using LongForm = describe::Extended<Form, &T::TaskConnection, &T::Guid, &T::Description>;
};

class FunctionBlocks final : public Collection<FunctionBlocks, FunctionBlock> {
 public:
  static constexpr std::string_view kHelp = "Function blocks, in order.";
};

extern template struct describe::Published<FunctionBlock>;
extern template struct describe::Published<FunctionBlocks>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_FUNCTION_BLOCK_H_
