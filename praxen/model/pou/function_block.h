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
        property<&FunctionBlock::Name>("Name of the function block; required for writing."),
        property<&FunctionBlock::TypeName>("Function block type; required for writing."),
        property<&FunctionBlock::TaskConnection>("Name of the task that runs the function block."),
        property<&FunctionBlock::Guid>("GUID of the instance."),
        property<&FunctionBlock::Description>("Free text."),
        property<&FunctionBlock::TypeGuid>("GUID of the type, as the engineering tool found it."),
        property<&FunctionBlock::TypePath>("Path of the type, as the engineering tool found it."),
        serialize(),
        property<&FunctionBlock::AspectObject>("Whether the instance is an aspect object."),
        property<&FunctionBlock::AccessLevel>("Access level for safety."),
        property<&FunctionBlock::SafetyType>("Safety type."),
        property<&FunctionBlock::ExposePropertiesInParent>(
            "Whether the parent shows the properties of the instance."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&FunctionBlock::Name>(),
                       required<&FunctionBlock::TypeName>(u"Type"),
                       optional<&FunctionBlock::TaskConnection>(), optional<&FunctionBlock::Guid>(),
                       readOnly<&FunctionBlock::TypeGuid>(), readOnly<&FunctionBlock::TypePath>(),
                       optional<&FunctionBlock::AspectObject>(),
                       optional<&FunctionBlock::ExposePropertiesInParent>(),
                       optional<&FunctionBlock::AccessLevel>(),
                       optional<&FunctionBlock::SafetyType>()},
        .children = {strictText<&FunctionBlock::Description>()}};
  }
  using Form = describe::Creation<FunctionBlock, &FunctionBlock::Name, &FunctionBlock::TypeName>;
  using LongForm = describe::Extended<Form, &FunctionBlock::TaskConnection, &FunctionBlock::Guid,
                                      &FunctionBlock::Description>;
};

class FunctionBlocks final : public Collection<FunctionBlocks, FunctionBlock> {
 public:
  static constexpr std::string_view kHelp = "Function blocks, in order.";
};

extern template const describe::ClassDescription& describe::Describe<FunctionBlock>();
extern template const describe::ClassDescription& describe::Describe<FunctionBlocks>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_FUNCTION_BLOCK_H_
