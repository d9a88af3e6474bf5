// IControlModule, the kind of the entries of a control module list, and the base of its classes.
#ifndef PRAXEN_MODEL_POU_I_CONTROL_MODULE_H_
#define PRAXEN_MODEL_POU_I_CONTROL_MODULE_H_

#include <string_view>
#include <type_traits>

#include "praxen/describe/kind.h"

namespace praxen {

class ControlModule;
class SingleControlModuleInst;

/// On its own it has no name, ignores one that is set, and is of neither class.
class IControlModule : public describe::KindBase<IControlModule, SerializableObject> {
 public:
  virtual Text Name() const { return {}; }
  virtual void SetName(const Text&) {}
  virtual bool IsControlModule() const { return false; }
  virtual bool IsSingleControlModule() const { return false; }

  /// Holds a foreign implementation; an empty reference when it does not implement the kind.
  static Ref<Object> Adapt(detail::Interface* foreign);

  static constexpr std::string_view kHelp = "An instance in a list of control modules.";
  static describe::Members members() {
    using namespace describe;
    return {
        PutFirst(accessors<&IControlModule::Name, &IControlModule::SetName>(
            "Name", "Name of the control module.")),
        computed<&IControlModule::IsControlModule>("Whether it is a ControlModule."),
        computed<&IControlModule::IsSingleControlModule>(
            "Whether it is a SingleControlModuleInst."),
    };
  }

 protected:
  IControlModule() = default;
  using KindBase::KindBase;
};

/// Answers the questions of the kind for `Class`.
template <class Class>
class ControlModuleInstance : public describe::Described<Class, IControlModule> {
 public:
  Text Name() const final { return static_cast<const Class&>(*this).Name; }
  void SetName(const Text& name) final { static_cast<Class&>(*this).Name = name; }
  bool IsControlModule() const final { return std::is_same_v<Class, ControlModule>; }
  bool IsSingleControlModule() const final {
    return std::is_same_v<Class, SingleControlModuleInst>;
  }
};

extern template const describe::ClassDescription& describe::Describe<IControlModule>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_I_CONTROL_MODULE_H_
