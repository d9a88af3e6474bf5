// ControlModuleType, a control module type.
#ifndef PRAXEN_MODEL_POU_CONTROL_MODULE_TYPE_H_
#define PRAXEN_MODEL_POU_CONTROL_MODULE_TYPE_H_

#include "praxen/model/data/cm_parameter.h"
#include "praxen/model/data/external_variable.h"
#include "praxen/model/data/variable.h"
#include "praxen/model/pou/code_blocks.h"
#include "praxen/model/pou/control_modules.h"
#include "praxen/model/pou/function_block.h"
#include "praxen/model/pou/graph_size.h"

namespace praxen {

class ControlModuleType final : public describe::Serializable<ControlModuleType> {
 public:
  Text Name;
  bool Protected = false, Hidden = false;
  ScopeValue Scope = pxPublic;
  Text InteractionWindow;
  bool AlarmOwner = false;
  Text Guid, BatchObject;
  Text SILLevel = u"NonSIL"_text;
  bool SimulationMark = false;
  Text ReservedByFunction, Description, CMTypeGraphics;
  Ref<praxen::CMParameters> CMParameters = New<praxen::CMParameters>();
  Ref<praxen::Variables> Variables = New<praxen::Variables>();
  Ref<praxen::ExternalVariables> ExternalVariables = New<praxen::ExternalVariables>();
  Ref<praxen::FunctionBlocks> FunctionBlocks = New<praxen::FunctionBlocks>();
  Ref<praxen::ControlModules> ControlModules = New<praxen::ControlModules>();
  Ref<praxen::CodeBlocks> CodeBlocks = New<praxen::CodeBlocks>();
  Ref<praxen::GraphSize> GraphSize = New<praxen::GraphSize>();
  bool InstantiateAsAspectObject = false, EmbeddedGraphicsVisible = false, RestrictedSIL = false;

  static constexpr std::string_view kHelp = "A control module type.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&ControlModuleType::Name>("Name of the type; required for writing."),
        property<&ControlModuleType::Protected>("Whether the type is protected."),
        property<&ControlModuleType::Hidden>("Whether the type is hidden from users."),
        property<&ControlModuleType::Scope>("Where the type can be used."),
        property<&ControlModuleType::InteractionWindow>("Name of the interaction window."),
        property<&ControlModuleType::AlarmOwner>(
            "Whether the type owns the alarms of what it contains."),
        property<&ControlModuleType::Guid>("GUID of the type."),
        property<&ControlModuleType::BatchObject>("Meaning of the type for batch control."),
        property<&ControlModuleType::SILLevel>("Safety integrity level as a text, such as NonSIL."),
        property<&ControlModuleType::SimulationMark>("Whether the type is marked as simulated."),
        property<&ControlModuleType::ReservedByFunction>("Function that the unit is reserved by."),
        property<&ControlModuleType::Description>("Free text."),
        property<&ControlModuleType::CMTypeGraphics>("Graphics of the type as a text."),
        property<&ControlModuleType::CMParameters>("Parameters of the type."),
        property<&ControlModuleType::Variables>("Variables of the type."),
        property<&ControlModuleType::ExternalVariables>("External variables of the type."),
        property<&ControlModuleType::FunctionBlocks>("Function blocks in the type."),
        property<&ControlModuleType::ControlModules>("Control modules in the type."),
        property<&ControlModuleType::CodeBlocks>("Code of the type."),
        property<&ControlModuleType::GraphSize>("Size of the type's graphics."),
        serialize(),
        property<&ControlModuleType::InstantiateAsAspectObject>(
            "Whether instances become aspect objects."),
        property<&ControlModuleType::EmbeddedGraphicsVisible>(
            "Whether embedded graphics can be seen."),
        property<&ControlModuleType::RestrictedSIL>(
            "Whether the type is restricted in its safety integrity level."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = POUHeader<ControlModuleType>(
            {optional<&ControlModuleType::InteractionWindow>(),
             optional<&ControlModuleType::AlarmOwner>(),
             optional<&ControlModuleType::InstantiateAsAspectObject>(),
             optional<&ControlModuleType::BatchObject>(), optional<&ControlModuleType::Guid>(),
             optional<&ControlModuleType::SILLevel>(),
             optional<&ControlModuleType::RestrictedSIL>(),
             optional<&ControlModuleType::SimulationMark>(),
             optional<&ControlModuleType::ReservedByFunction>(),
             optional<&ControlModuleType::EmbeddedGraphicsVisible>()}),
        .children = {
            text<&ControlModuleType::CMTypeGraphics>(), list<&ControlModuleType::CMParameters>(),
            list<&ControlModuleType::Variables>(), list<&ControlModuleType::ExternalVariables>(),
            list<&ControlModuleType::FunctionBlocks>(), list<&ControlModuleType::ControlModules>(),
            list<&ControlModuleType::CodeBlocks>(), text<&ControlModuleType::Description>(),
            object<&ControlModuleType::GraphSize>()}};
  }
  using Form = describe::Creation<ControlModuleType, &ControlModuleType::Name,
                                  &ControlModuleType::Description>;
  using LongForm =
      describe::Extended<Form, &ControlModuleType::Protected, &ControlModuleType::Hidden,
                         &ControlModuleType::Scope, &ControlModuleType::InteractionWindow,
                         &ControlModuleType::AlarmOwner, &ControlModuleType::Guid,
                         &ControlModuleType::GraphSize>;
};

extern template const describe::ClassDescription& describe::Describe<ControlModuleType>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_CONTROL_MODULE_TYPE_H_
