// ControlModules, the list of the control modules that a unit contains.
#ifndef PRAXEN_MODEL_POU_CONTROL_MODULES_H_
#define PRAXEN_MODEL_POU_CONTROL_MODULES_H_

#include "praxen/model/collection.h"
#include "praxen/model/pou/control_module.h"

namespace praxen {

class ControlModules final : public Collection<ControlModules, IControlModule, SerializableObject> {
 public:
  Ref<ControlModule> AddControlModule(const auto&... arguments) {
    return Create<ControlModule::Form>(arguments...);
  }
  Ref<ControlModule> AddControlModule1(const auto&... arguments) {
    return Create<ControlModule::LongForm>(arguments...);
  }
  Ref<SingleControlModuleInst> AddSingleControlModuleInst(const auto&... arguments) {
    return Create<SingleControlModuleInst::Form>(arguments...);
  }
  Ref<SingleControlModuleInst> AddSingleControlModuleInst1(const auto&... arguments) {
    return Create<SingleControlModuleInst::LongForm>(arguments...);
  }

  static constexpr std::string_view kHelp = "Control modules, in order.";
  static constexpr std::string_view kArgument = "CM";
  static describe::Members members() {
    using namespace describe;
    using Single = SingleControlModuleInst;
    constexpr std::string_view kCreates = "Creates a control module, appends and returns it.";
    constexpr std::string_view kCreatesSingle =
        "Creates an instance of a single control module, appends and returns it.";
    return Members{serialize()} + additions() +
           Members{creation<ControlModule::Form>("AddControlModule", kCreates),
                   creation<ControlModule::LongForm>("AddControlModule1", kCreates),
                   creation<Single::Form>("AddSingleControlModuleInst", kCreatesSingle),
                   creation<Single::LongForm>("AddSingleControlModuleInst1", kCreatesSingle)} +
           lookups() + positions();
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.elements = LastOtherwise(IControlModule::choices()), .container = Container::Always};
  }
  using Form = describe::Creation<T>;
};

extern template struct describe::Published<ControlModules>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_CONTROL_MODULES_H_
