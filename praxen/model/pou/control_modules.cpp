// The description of ControlModules and its typed additions.
#include "praxen/model/pou/control_modules.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

template const ClassDescription& describe::Describe<ControlModules>();

Members ControlModules::members() {
  constexpr std::string_view kAppends = "Creates a control module, appends and returns it.";
  constexpr std::string_view kAppendsSingle =
      "Creates an instance of a single control module, appends and returns it.";
  using Single = SingleControlModuleInst;
  return Members{serialize()} + additions() +
         Members{
             method<&ControlModules::AddControlModule>(kAppends,
                                                       ControlModule::Form::ParameterNames()),
             method<&ControlModules::AddControlModule1>(kAppends,
                                                        ControlModule::LongForm::ParameterNames()),
             method<&ControlModules::AddSingleControlModuleInst>(kAppendsSingle,
                                                                 Single::Form::ParameterNames()),
             method<&ControlModules::AddSingleControlModuleInst1>(
                 kAppendsSingle, Single::LongForm::ParameterNames()),
         } +
         lookups() + positions();
}

Ref<ControlModule> ControlModules::AddControlModule(const Text& Name, const Text& TypeName) {
  return Addition<ControlModules, ControlModule::Form>::Run(*this, Name, TypeName);
}

Ref<ControlModule> ControlModules::AddControlModule1(const Text& Name, const Text& TypeName,
                                                     const Text& TaskConnection,
                                                     VisibilityInGraphicsValue VisibilityInGraphics,
                                                     const Text& Guid, const Text& Description,
                                                     const Ref<praxen::GraphPos>& GraphPos) {
  return Addition<ControlModules, ControlModule::LongForm>::Run(
      *this, Name, TypeName, TaskConnection, VisibilityInGraphics, Guid, Description, GraphPos);
}

Ref<SingleControlModuleInst> ControlModules::AddSingleControlModuleInst(const Text& Name) {
  return Addition<ControlModules, SingleControlModuleInst::Form>::Run(*this, Name);
}

Ref<SingleControlModuleInst> ControlModules::AddSingleControlModuleInst1(
    const Text& Name, const Text& TaskConnection, VisibilityInGraphicsValue VisibilityInGraphics,
    const Text& TypeGuid, const Text& InstGuid, const Ref<praxen::GraphPos>& GraphPos) {
  return Addition<ControlModules, SingleControlModuleInst::LongForm>::Run(
      *this, Name, TaskConnection, VisibilityInGraphics, TypeGuid, InstGuid, GraphPos);
}

}  // namespace praxen
