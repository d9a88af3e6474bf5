// ControlModuleType, a control module type.
#ifndef PRAXEN_MODEL_POU_CONTROL_MODULE_TYPE_H_
#define PRAXEN_MODEL_POU_CONTROL_MODULE_TYPE_H_

#include "praxen/model/data/cm_parameter.h"
#include "praxen/model/data/external_variable.h"
#include "praxen/model/data/variable.h"
#include "praxen/model/pou/code_blocks.h"
#include "praxen/model/pou/control_modules.h"
#include "praxen/model/pou/function_block.h"
#include "praxen/model/pou/graphics.h"

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
        property<&T::Name>("Name of the type."),
        property<&T::Protected>("Whether the type is protected."),
        property<&T::Hidden>("Whether the type is hidden from users."),
        property<&T::Scope>("Where the type can be used."),
        property<&T::InteractionWindow>("Name of the interaction window."),
        property<&T::AlarmOwner>("Whether the type owns the alarms of what it contains."),
        property<&T::Guid>("GUID of the type."),
        property<&T::BatchObject>("Meaning of the type for batch control."),
        property<&T::SILLevel>("Safety integrity level as a text, such as NonSIL."),
        property<&T::SimulationMark>("Whether the type is marked as simulated."),
        property<&T::ReservedByFunction>("Function that the unit is reserved by."),
        property<&T::Description>("Free text."),
        property<&T::CMTypeGraphics>("Graphics of the type as a text."),
        property<&T::CMParameters>("Parameters of the type."),
        property<&T::Variables>("Variables of the type."),
        property<&T::ExternalVariables>("External variables of the type."),
        property<&T::FunctionBlocks>("Function blocks in the type."),
        property<&T::ControlModules>("Control modules in the type."),
        property<&T::CodeBlocks>("Code of the type."),
        property<&T::GraphSize>("Size of the type's graphics."),
        serialize(),
        property<&T::InstantiateAsAspectObject>("Whether instances become aspect objects."),
        property<&T::EmbeddedGraphicsVisible>("Whether embedded graphics can be seen."),
        property<&T::RestrictedSIL>(
            "Whether the type is restricted in its safety integrity level."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = POUHeader<T>(
                {optional<&T::InteractionWindow>(), optional<&T::AlarmOwner>(),
                 optional<&T::InstantiateAsAspectObject>(), optional<&T::BatchObject>(),
                 optional<&T::Guid>(), optional<&T::SILLevel>(), optional<&T::RestrictedSIL>(),
                 optional<&T::SimulationMark>(), optional<&T::ReservedByFunction>(),
                 optional<&T::EmbeddedGraphicsVisible>()}),
            .children = {text<&T::CMTypeGraphics>(), list<&T::CMParameters>(),
                         list<&T::Variables>(), list<&T::ExternalVariables>(),
                         list<&T::FunctionBlocks>(), list<&T::ControlModules>(),
                         list<&T::CodeBlocks>(), text<&T::Description>(), object<&T::GraphSize>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::Description>;
  using LongForm =
      describe::Extended<Form, &T::Protected, &T::Hidden, &T::Scope, &T::InteractionWindow,
                         &T::AlarmOwner, &T::Guid, &T::GraphSize>;
};

extern template struct describe::Published<ControlModuleType>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_CONTROL_MODULE_TYPE_H_
