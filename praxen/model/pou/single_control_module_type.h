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
#include "praxen/model/pou/graph_size.h"

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
        property<&SingleControlModuleType::Name>(
            "Name of the control module; required for writing."),
        property<&SingleControlModuleType::InteractionWindow>("Name of the interaction window."),
        property<&SingleControlModuleType::AlarmOwner>(
            "Whether the control module owns the alarms of what it contains."),
        property<&SingleControlModuleType::TypeGuid>("GUID of the type."),
        property<&SingleControlModuleType::BatchObject>(
            "Meaning of the control module for batch control."),
        property<&SingleControlModuleType::SILLevel>(
            "Safety integrity level as a text, such as NonSIL."),
        property<&SingleControlModuleType::SimulationMark>(
            "Whether the control module is marked as simulated."),
        property<&SingleControlModuleType::ReservedByFunction>(
            "Function that the unit is reserved by."),
        property<&SingleControlModuleType::Description>("Free text."),
        property<&SingleControlModuleType::CMTypeGraphics>("Graphics of the type as a text."),
        property<&SingleControlModuleType::CMParameters>("Parameters of the control module."),
        property<&SingleControlModuleType::Variables>("Variables of the control module."),
        property<&SingleControlModuleType::ExternalVariables>(
            "External variables of the control module."),
        property<&SingleControlModuleType::FunctionBlocks>(
            "Function blocks in the control module."),
        property<&SingleControlModuleType::ControlModules>(
            "Control modules in the control module."),
        property<&SingleControlModuleType::CodeBlocks>("Code of the control module."),
        property<&SingleControlModuleType::GraphSize>("Size of the type's graphics."),
        serialize(),
        property<&SingleControlModuleType::RestrictedSIL>(
            "Whether the control module is restricted in its safety integrity level."),
        property<&SingleControlModuleType::CommVariables>(
            "Communication variables of the control module."),
        property<&SingleControlModuleType::InitValues>(
            "Initial values of variables in the control module."),
        property<&SingleControlModuleType::Signals>("Signals of the control module."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&SingleControlModuleType::Name>(),
                           optional<&SingleControlModuleType::InteractionWindow>(),
                           optional<&SingleControlModuleType::AlarmOwner>(),
                           optional<&SingleControlModuleType::BatchObject>(),
                           always<&SingleControlModuleType::TypeGuid>(),
                           optional<&SingleControlModuleType::SILLevel>(),
                           optional<&SingleControlModuleType::RestrictedSIL>(),
                           optional<&SingleControlModuleType::SimulationMark>(),
                           optional<&SingleControlModuleType::ReservedByFunction>()},
            .children = {text<&SingleControlModuleType::CMTypeGraphics>(),
                         list<&SingleControlModuleType::CMParameters>(),
                         list<&SingleControlModuleType::Variables>(),
                         list<&SingleControlModuleType::ExternalVariables>(),
                         list<&SingleControlModuleType::CommVariables>(),
                         list<&SingleControlModuleType::Signals>(),
                         list<&SingleControlModuleType::FunctionBlocks>(),
                         list<&SingleControlModuleType::ControlModules>(),
                         list<&SingleControlModuleType::InitValues>(),
                         list<&SingleControlModuleType::CodeBlocks>(),
                         text<&SingleControlModuleType::Description>(),
                         object<&SingleControlModuleType::GraphSize>()}};
  }
  using Form = describe::Creation<SingleControlModuleType, &SingleControlModuleType::Name,
                                  &SingleControlModuleType::Description>;
  using LongForm =
      describe::Extended<Form, &SingleControlModuleType::InteractionWindow,
                         &SingleControlModuleType::AlarmOwner, &SingleControlModuleType::TypeGuid,
                         &SingleControlModuleType::GraphSize>;
};

extern template const describe::ClassDescription& describe::Describe<SingleControlModuleType>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SINGLE_CONTROL_MODULE_TYPE_H_
