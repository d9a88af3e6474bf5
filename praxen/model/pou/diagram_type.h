// DiagramType, a diagram type.
#ifndef PRAXEN_MODEL_POU_DIAGRAM_TYPE_H_
#define PRAXEN_MODEL_POU_DIAGRAM_TYPE_H_

#include "praxen/model/data/parameter.h"
#include "praxen/model/data/variable.h"
#include "praxen/model/pou/code_blocks.h"
#include "praxen/model/pou/control_modules.h"
#include "praxen/model/pou/diagram_instance.h"
#include "praxen/model/pou/function_block.h"

namespace praxen {

class DiagramType final : public describe::Serializable<DiagramType> {
 public:
  Text Name;
  bool Protected = false, Hidden = false;
  ScopeValue Scope = pxPublic;
  bool AlarmOwner = false;
  Text Guid;
  bool InstantiateAsAspectObject = false;
  Text SILLevel = u"NonSIL"_text;
  bool RestrictedSIL = false, SimulationMark = false;
  Text ReservedByFunction;
  bool EmbeddedGraphicsVisible = false;
  Text Description;
  Ref<praxen::Parameters> Parameters = New<praxen::Parameters>();
  Ref<praxen::Variables> Variables = New<praxen::Variables>();
  Ref<praxen::FunctionBlocks> FunctionBlocks = New<praxen::FunctionBlocks>();
  Ref<praxen::ControlModules> ControlModules = New<praxen::ControlModules>();
  Ref<praxen::DiagramInstances> DiagramInstances = New<praxen::DiagramInstances>();
  Ref<praxen::CodeBlocks> CodeBlocks = New<praxen::CodeBlocks>();
  Text BatchObject;

  static constexpr std::string_view kHelp = "A diagram type.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&DiagramType::Name>("Name of the type; required for writing."),
        property<&DiagramType::Protected>("Whether the type is protected."),
        property<&DiagramType::Hidden>("Whether the type is hidden from users."),
        property<&DiagramType::Scope>("Where the type can be used."),
        property<&DiagramType::AlarmOwner>("Whether the type owns the alarms of what it contains."),
        property<&DiagramType::Guid>("GUID of the type."),
        property<&DiagramType::InstantiateAsAspectObject>(
            "Whether instances become aspect objects."),
        property<&DiagramType::SILLevel>("Safety integrity level as a text, such as NonSIL."),
        property<&DiagramType::RestrictedSIL>(
            "Whether the type is restricted in its safety integrity level."),
        property<&DiagramType::SimulationMark>("Whether the type is marked as simulated."),
        property<&DiagramType::ReservedByFunction>("Function that the unit is reserved by."),
        property<&DiagramType::EmbeddedGraphicsVisible>("Whether embedded graphics can be seen."),
        property<&DiagramType::Description>("Free text."),
        property<&DiagramType::Parameters>("Parameters of the type."),
        property<&DiagramType::Variables>("Variables of the type."),
        property<&DiagramType::FunctionBlocks>("Function blocks in the type."),
        property<&DiagramType::ControlModules>("Control modules in the type."),
        property<&DiagramType::DiagramInstances>("Diagram instances in the type."),
        property<&DiagramType::CodeBlocks>("Code of the type."),
        serialize(),
        property<&DiagramType::BatchObject>("Meaning of the type for batch control."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = POUHeader<DiagramType>(
            {optional<&DiagramType::AlarmOwner>(),
             optional<&DiagramType::InstantiateAsAspectObject>(),
             optional<&DiagramType::BatchObject>(), optional<&DiagramType::Guid>(),
             optional<&DiagramType::SILLevel>(), optional<&DiagramType::RestrictedSIL>(),
             optional<&DiagramType::SimulationMark>(), optional<&DiagramType::ReservedByFunction>(),
             optional<&DiagramType::EmbeddedGraphicsVisible>()}),
        .children = {list<&DiagramType::Parameters>(), list<&DiagramType::Variables>(),
                     list<&DiagramType::FunctionBlocks>(), list<&DiagramType::ControlModules>(),
                     list<&DiagramType::DiagramInstances>(), list<&DiagramType::CodeBlocks>(),
                     strictText<&DiagramType::Description>()}};
  }
  using Form = describe::Creation<DiagramType, &DiagramType::Name, &DiagramType::Description>;
  using LongForm =
      describe::Extended<Form, &DiagramType::Protected, &DiagramType::Hidden, &DiagramType::Scope,
                         &DiagramType::AlarmOwner, &DiagramType::Guid>;
};

extern template const describe::ClassDescription& describe::Describe<DiagramType>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_DIAGRAM_TYPE_H_
