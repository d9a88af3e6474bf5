// Diagram, a diagram of an application.
#ifndef PRAXEN_MODEL_POU_DIAGRAM_H_
#define PRAXEN_MODEL_POU_DIAGRAM_H_

#include "praxen/model/data/comm_variable.h"
#include "praxen/model/data/init_value.h"
#include "praxen/model/data/signal.h"
#include "praxen/model/data/variable.h"
#include "praxen/model/pou/code_blocks.h"
#include "praxen/model/pou/control_modules.h"
#include "praxen/model/pou/diagram_instance.h"
#include "praxen/model/pou/function_block.h"

namespace praxen {

class Diagram final : public describe::Serializable<Diagram> {
 public:
  Text Name, TaskConnection, TypeGuid, InstGuid, Description;
  Text SILLevel = u"NonSIL"_text;
  bool RestrictedSIL = false, SimulationMark = false;
  Text ReservedByFunction, AccessLevel, SafetyType;
  Ref<praxen::Variables> Variables = New<praxen::Variables>();
  Ref<praxen::CommVariables> CommVariables = New<praxen::CommVariables>();
  Ref<praxen::FunctionBlocks> FunctionBlocks = New<praxen::FunctionBlocks>();
  Ref<praxen::ControlModules> ControlModules = New<praxen::ControlModules>();
  Ref<praxen::InitValues> InitValues = New<praxen::InitValues>();
  Ref<praxen::CodeBlocks> CodeBlocks = New<praxen::CodeBlocks>();
  Ref<praxen::DiagramInstances> DiagramInstances = New<praxen::DiagramInstances>();
  Ref<praxen::Signals> Signals = New<praxen::Signals>();
  Text BatchObject;

  static constexpr std::string_view kHelp = "A diagram of an application.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::Name>("Name of the diagram."),
        property<&T::TaskConnection>("Name of the task that runs the diagram."),
        property<&T::TypeGuid>("GUID of the type."),
        property<&T::InstGuid>("GUID of the instance."),
        property<&T::Description>("Free text."),
        property<&T::SILLevel>("Safety integrity level as a text, such as NonSIL."),
        property<&T::RestrictedSIL>(
            "Whether the diagram is restricted in its safety integrity level."),
        property<&T::SimulationMark>("Whether the diagram is marked as simulated."),
        property<&T::ReservedByFunction>("Function that the unit is reserved by."),
        property<&T::AccessLevel>("Access level for safety."),
        property<&T::SafetyType>("Safety type."),
        property<&T::Variables>("Variables of the diagram."),
        property<&T::CommVariables>("Communication variables of the diagram."),
        property<&T::FunctionBlocks>("Function blocks in the diagram."),
        property<&T::ControlModules>("Control modules in the diagram."),
        property<&T::InitValues>("Initial values of variables in the diagram."),
        property<&T::CodeBlocks>("Code of the diagram."),
        serialize(),
        property<&T::DiagramInstances>("Diagram instances in the diagram."),
        property<&T::Signals>("Signals of the diagram."),
        property<&T::BatchObject>("Meaning of the diagram for batch control."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&T::Name>(), optional<&T::TaskConnection>(),
                       optional<&T::TypeGuid>(), optional<&T::InstGuid>(), optional<&T::SILLevel>(),
                       optional<&T::RestrictedSIL>(), optional<&T::SimulationMark>(),
                       optional<&T::ReservedByFunction>(), optional<&T::AccessLevel>(),
                       optional<&T::SafetyType>(), optional<&T::BatchObject>()},
        .children = {list<&T::Variables>(), list<&T::CommVariables>(), list<&T::Signals>(),
                     list<&T::FunctionBlocks>(), list<&T::ControlModules>(),
                     list<&T::DiagramInstances>(), list<&T::InitValues>(), list<&T::CodeBlocks>(),
                     strictText<&T::Description>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::Description>;
  using LongForm = describe::Extended<Form, &T::TaskConnection, &T::TypeGuid, &T::InstGuid>;
};

extern template struct describe::Published<Diagram>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_DIAGRAM_H_
