// ControlModules, the list of the control modules that a unit contains.
#ifndef PRAXEN_MODEL_POU_CONTROL_MODULES_H_
#define PRAXEN_MODEL_POU_CONTROL_MODULES_H_

#include "praxen/model/collection.h"
#include "praxen/model/pou/control_module.h"
#include "praxen/model/pou/single_control_module_inst.h"

namespace praxen {

class ControlModules final : public Collection<ControlModules, IControlModule, SerializableObject> {
 public:
  Ref<ControlModule> AddControlModule(const Text& Name, const Text& TypeName);
  Ref<ControlModule> AddControlModule1(const Text& Name, const Text& TypeName,
                                       const Text& TaskConnection,
                                       VisibilityInGraphicsValue VisibilityInGraphics,
                                       const Text& Guid, const Text& Description,
                                       const Ref<GraphPos>& GraphPos);
  Ref<SingleControlModuleInst> AddSingleControlModuleInst(const Text& Name);
  Ref<SingleControlModuleInst> AddSingleControlModuleInst1(
      const Text& Name, const Text& TaskConnection, VisibilityInGraphicsValue VisibilityInGraphics,
      const Text& TypeGuid, const Text& InstGuid, const Ref<GraphPos>& GraphPos);

  static constexpr std::string_view kHelp = "Control modules, in order.";
  static constexpr std::string_view kArgument = "CM";
  static describe::Members members();
  static describe::Layout layout() {
    using namespace describe;
    return {.elements = {choice<ControlModule, IControlModule, &IControlModule::IsControlModule>(),
                         otherwise<SingleControlModuleInst>()},
            .container = Container::Always};
  }
  using Form = describe::Creation<ControlModules>;
};

extern template const describe::ClassDescription& describe::Describe<ControlModules>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_CONTROL_MODULES_H_
