// SingleControlModuleType, a control module that is its own type, as a type.
#ifndef PRAXEN_MODEL_POU_SINGLE_CONTROL_MODULE_TYPE_H_
#define PRAXEN_MODEL_POU_SINGLE_CONTROL_MODULE_TYPE_H_

#include "praxen/model/data/cm_parameter.h"
#include "praxen/model/data/comm_variable.h"
#include "praxen/model/data/external_variable.h"
#include "praxen/model/data/init_value.h"
#include "praxen/model/data/signal.h"
#include "praxen/model/data/variable.h"
#include "praxen/model/pou/code_blocks.h"
#include "praxen/model/pou/control_modules.h"
#include "praxen/model/pou/function_block.h"
#include "praxen/model/pou/graphics.h"

namespace praxen {

class SingleControlModuleType final : public describe::Serializable<SingleControlModuleType> {
 public:
  Text Name, InteractionWindow;
  bool AlarmOwner = false;
  Text TypeGuid = u" "_text;
  Text BatchObject;
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
  bool RestrictedSIL = false;
  Ref<praxen::CommVariables> CommVariables = New<praxen::CommVariables>();
  Ref<praxen::InitValues> InitValues = New<praxen::InitValues>();
  Ref<praxen::Signals> Signals = New<praxen::Signals>();

  static constexpr std::string_view kHelp = "A control module that is its own type, as a type.";
  static constexpr const char16_t* kElement = u"SingleControlModule";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::Name>("Name of the control module."),
        property<&T::InteractionWindow>("Name of the interaction window."),
        property<&T::AlarmOwner>("Whether the control module owns the alarms of what it contains."),
        property<&T::TypeGuid>("GUID of the type."),
        property<&T::BatchObject>("Meaning of the control module for batch control."),
        property<&T::SILLevel>("Safety integrity level as a text, such as NonSIL."),
        property<&T::SimulationMark>("Whether the control module is marked as simulated."),
        property<&T::ReservedByFunction>("Function that the unit is reserved by."),
        property<&T::Description>("Free text."),
        property<&T::CMTypeGraphics>("Graphics of the type as a text."),
        property<&T::CMParameters>("Parameters of the control module."),
        property<&T::Variables>("Variables of the control module."),
        property<&T::ExternalVariables>("External variables of the control module."),
        property<&T::FunctionBlocks>("Function blocks in the control module."),
        property<&T::ControlModules>("Control modules in the control module."),
        property<&T::CodeBlocks>("Code of the control module."),
        property<&T::GraphSize>("Size of the type's graphics."),
        serialize(),
        property<&T::RestrictedSIL>(
            "Whether the control module is restricted in its safety integrity level."),
        property<&T::CommVariables>("Communication variables of the control module."),
        property<&T::InitValues>("Initial values of variables in the control module."),
        property<&T::Signals>("Signals of the control module."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&T::Name>(), optional<&T::InteractionWindow>(),
                       optional<&T::AlarmOwner>(), optional<&T::BatchObject>(),
                       always<&T::TypeGuid>(), optional<&T::SILLevel>(),
                       optional<&T::RestrictedSIL>(), optional<&T::SimulationMark>(),
                       optional<&T::ReservedByFunction>()},
        .children = {text<&T::CMTypeGraphics>(), list<&T::CMParameters>(), list<&T::Variables>(),
                     list<&T::ExternalVariables>(), list<&T::CommVariables>(), list<&T::Signals>(),
                     list<&T::FunctionBlocks>(), list<&T::ControlModules>(), list<&T::InitValues>(),
                     list<&T::CodeBlocks>(), text<&T::Description>(), object<&T::GraphSize>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::Description>;
  using LongForm =
      describe::Extended<Form, &T::InteractionWindow, &T::AlarmOwner, &T::TypeGuid, &T::GraphSize>;
};

extern template struct describe::Published<SingleControlModuleType>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SINGLE_CONTROL_MODULE_TYPE_H_
