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
        property<&Diagram::Name>("Name of the diagram; required for writing."),
        property<&Diagram::TaskConnection>("Name of the task that runs the diagram."),
        property<&Diagram::TypeGuid>("GUID of the type."),
        property<&Diagram::InstGuid>("GUID of the instance."),
        property<&Diagram::Description>("Free text."),
        property<&Diagram::SILLevel>("Safety integrity level as a text, such as NonSIL."),
        property<&Diagram::RestrictedSIL>(
            "Whether the diagram is restricted in its safety integrity level."),
        property<&Diagram::SimulationMark>("Whether the diagram is marked as simulated."),
        property<&Diagram::ReservedByFunction>("Function that the unit is reserved by."),
        property<&Diagram::AccessLevel>("Access level for safety."),
        property<&Diagram::SafetyType>("Safety type."),
        property<&Diagram::Variables>("Variables of the diagram."),
        property<&Diagram::CommVariables>("Communication variables of the diagram."),
        property<&Diagram::FunctionBlocks>("Function blocks in the diagram."),
        property<&Diagram::ControlModules>("Control modules in the diagram."),
        property<&Diagram::InitValues>("Initial values of variables in the diagram."),
        property<&Diagram::CodeBlocks>("Code of the diagram."),
        serialize(),
        property<&Diagram::DiagramInstances>("Diagram instances in the diagram."),
        property<&Diagram::Signals>("Signals of the diagram."),
        property<&Diagram::BatchObject>("Meaning of the diagram for batch control."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&Diagram::Name>(), optional<&Diagram::TaskConnection>(),
                       optional<&Diagram::TypeGuid>(), optional<&Diagram::InstGuid>(),
                       optional<&Diagram::SILLevel>(), optional<&Diagram::RestrictedSIL>(),
                       optional<&Diagram::SimulationMark>(),
                       optional<&Diagram::ReservedByFunction>(), optional<&Diagram::AccessLevel>(),
                       optional<&Diagram::SafetyType>(), optional<&Diagram::BatchObject>()},
        .children = {list<&Diagram::Variables>(), list<&Diagram::CommVariables>(),
                     list<&Diagram::Signals>(), list<&Diagram::FunctionBlocks>(),
                     list<&Diagram::ControlModules>(), list<&Diagram::DiagramInstances>(),
                     list<&Diagram::InitValues>(), list<&Diagram::CodeBlocks>(),
                     strictText<&Diagram::Description>()}};
  }
  using Form = describe::Creation<Diagram, &Diagram::Name, &Diagram::Description>;
  using LongForm =
      describe::Extended<Form, &Diagram::TaskConnection, &Diagram::TypeGuid, &Diagram::InstGuid>;
};

extern template const describe::ClassDescription& describe::Describe<Diagram>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_DIAGRAM_H_
