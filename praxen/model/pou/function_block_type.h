// FunctionBlockType, a function block type.
#ifndef PRAXEN_MODEL_POU_FUNCTION_BLOCK_TYPE_H_
#define PRAXEN_MODEL_POU_FUNCTION_BLOCK_TYPE_H_

#include "praxen/model/data/extensible_parameter.h"
#include "praxen/model/data/external_variable.h"
#include "praxen/model/data/parameter.h"
#include "praxen/model/data/variable.h"
#include "praxen/model/pou/code_blocks.h"
#include "praxen/model/pou/control_modules.h"
#include "praxen/model/pou/function_block.h"

namespace praxen {

class FunctionBlockType final : public describe::Serializable<FunctionBlockType> {
 public:
  Text Name;
  bool Protected = false, Hidden = false;
  ScopeValue Scope = pxPublic;
  Text InteractionWindow;
  bool AlarmOwner = false;
  Text Guid;
  Text SILLevel = u"NonSIL"_text;
  bool SimulationMark = false;
  Text ReservedByFunction, Description;
  Ref<praxen::Parameters> Parameters = New<praxen::Parameters>();
  Ref<praxen::ExtensibleParameters> ExtensibleParameters = New<praxen::ExtensibleParameters>();
  Ref<praxen::Variables> Variables = New<praxen::Variables>();
  Ref<praxen::ExternalVariables> ExternalVariables = New<praxen::ExternalVariables>();
  Ref<praxen::FunctionBlocks> FunctionBlocks = New<praxen::FunctionBlocks>();
  Ref<praxen::ControlModules> ControlModules = New<praxen::ControlModules>();
  Ref<praxen::CodeBlocks> CodeBlocks = New<praxen::CodeBlocks>();
  bool InstantiateAsAspectObject = false, EmbeddedGraphicsVisible = false, RestrictedSIL = false;

  static constexpr std::string_view kHelp = "A function block type.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&FunctionBlockType::Name>("Name of the type; required for writing."),
        property<&FunctionBlockType::Protected>("Whether the type is protected."),
        property<&FunctionBlockType::Hidden>("Whether the type is hidden from users."),
        property<&FunctionBlockType::Scope>("Where the type can be used."),
        property<&FunctionBlockType::InteractionWindow>("Name of the interaction window."),
        property<&FunctionBlockType::AlarmOwner>(
            "Whether the type owns the alarms of what it contains."),
        property<&FunctionBlockType::Guid>("GUID of the type."),
        property<&FunctionBlockType::SILLevel>("Safety integrity level as a text, such as NonSIL."),
        property<&FunctionBlockType::SimulationMark>("Whether the type is marked as simulated."),
        property<&FunctionBlockType::ReservedByFunction>("Function that the unit is reserved by."),
        property<&FunctionBlockType::Description>("Free text."),
        property<&FunctionBlockType::Parameters>("Parameters of the type."),
        property<&FunctionBlockType::ExtensibleParameters>("Extensible parameters of the type."),
        property<&FunctionBlockType::Variables>("Variables of the type."),
        property<&FunctionBlockType::ExternalVariables>("External variables of the type."),
        property<&FunctionBlockType::FunctionBlocks>("Function blocks in the type."),
        property<&FunctionBlockType::ControlModules>("Control modules in the type."),
        property<&FunctionBlockType::CodeBlocks>("Code of the type."),
        serialize(),
        property<&FunctionBlockType::InstantiateAsAspectObject>(
            "Whether instances become aspect objects."),
        property<&FunctionBlockType::EmbeddedGraphicsVisible>(
            "Whether embedded graphics can be seen."),
        property<&FunctionBlockType::RestrictedSIL>(
            "Whether the type is restricted in its safety integrity level."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = POUHeader<FunctionBlockType>(
                {optional<&FunctionBlockType::InteractionWindow>(),
                 optional<&FunctionBlockType::AlarmOwner>(),
                 optional<&FunctionBlockType::InstantiateAsAspectObject>(),
                 optional<&FunctionBlockType::Guid>(), optional<&FunctionBlockType::SILLevel>(),
                 optional<&FunctionBlockType::RestrictedSIL>(),
                 optional<&FunctionBlockType::SimulationMark>(),
                 optional<&FunctionBlockType::ReservedByFunction>(),
                 optional<&FunctionBlockType::EmbeddedGraphicsVisible>()}),
            .children = {list<&FunctionBlockType::Parameters>(),
                         list<&FunctionBlockType::ExtensibleParameters>(),
                         list<&FunctionBlockType::Variables>(),
                         list<&FunctionBlockType::ExternalVariables>(),
                         list<&FunctionBlockType::FunctionBlocks>(),
                         listUnlessEmpty<&FunctionBlockType::ControlModules>(),
                         list<&FunctionBlockType::CodeBlocks>(),
                         strictText<&FunctionBlockType::Description>()}};
  }
  using Form = describe::Creation<FunctionBlockType, &FunctionBlockType::Name,
                                  &FunctionBlockType::Description>;
  using LongForm =
      describe::Extended<Form, &FunctionBlockType::Protected, &FunctionBlockType::Hidden,
                         &FunctionBlockType::Scope, &FunctionBlockType::InteractionWindow,
                         &FunctionBlockType::AlarmOwner, &FunctionBlockType::Guid>;
};

extern template const describe::ClassDescription& describe::Describe<FunctionBlockType>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_FUNCTION_BLOCK_TYPE_H_
