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
        property<&T::Name>("Name of the type."),
        property<&T::Protected>("Whether the type is protected."),
        property<&T::Hidden>("Whether the type is hidden from users."),
        property<&T::Scope>("Where the type can be used."),
        property<&T::AlarmOwner>("Whether the type owns the alarms of what it contains."),
        property<&T::Guid>("GUID of the type."),
        property<&T::InstantiateAsAspectObject>("Whether instances become aspect objects."),
        property<&T::SILLevel>("Safety integrity level as a text, such as NonSIL."),
        property<&T::RestrictedSIL>(
            "Whether the type is restricted in its safety integrity level."),
        property<&T::SimulationMark>("Whether the type is marked as simulated."),
        property<&T::ReservedByFunction>("Function that the unit is reserved by."),
        property<&T::EmbeddedGraphicsVisible>("Whether embedded graphics can be seen."),
        property<&T::Description>("Free text."),
        property<&T::Parameters>("Parameters of the type."),
        property<&T::Variables>("Variables of the type."),
        property<&T::FunctionBlocks>("Function blocks in the type."),
        property<&T::ControlModules>("Control modules in the type."),
        property<&T::DiagramInstances>("Diagram instances in the type."),
        property<&T::CodeBlocks>("Code of the type."),
        serialize(),
        property<&T::BatchObject>("Meaning of the type for batch control."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = POUHeader<T>(
                {optional<&T::AlarmOwner>(), optional<&T::InstantiateAsAspectObject>(),
                 optional<&T::BatchObject>(), optional<&T::Guid>(), optional<&T::SILLevel>(),
                 optional<&T::RestrictedSIL>(), optional<&T::SimulationMark>(),
                 optional<&T::ReservedByFunction>(), optional<&T::EmbeddedGraphicsVisible>()}),
            .children = {list<&T::Parameters>(), list<&T::Variables>(), list<&T::FunctionBlocks>(),
                         list<&T::ControlModules>(), list<&T::DiagramInstances>(),
                         list<&T::CodeBlocks>(), strictText<&T::Description>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::Description>;
  using LongForm =
      describe::Extended<Form, &T::Protected, &T::Hidden, &T::Scope, &T::AlarmOwner, &T::Guid>;
};

extern template struct describe::Published<DiagramType>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_DIAGRAM_TYPE_H_
