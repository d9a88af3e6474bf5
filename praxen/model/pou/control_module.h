// ControlModule and SingleControlModuleInst, the control modules of a list, and their kind
// IControlModule.
#ifndef PRAXEN_MODEL_POU_CONTROL_MODULE_H_
#define PRAXEN_MODEL_POU_CONTROL_MODULE_H_

#include "praxen/describe/kind.h"
#include "praxen/model/pou/cm_connection.h"
#include "praxen/model/pou/graphics.h"

namespace praxen {

class ControlModule;
class SingleControlModuleInst;

/// On its own it has no name, ignores one that is set, and is of neither class.
class IControlModule : public describe::KindBase<IControlModule, SerializableObject> {
 public:
  virtual Text Name() const { return GetText(); }
  virtual void SetName(const Text& name) { SetText(name); }
  virtual bool IsControlModule() const { return Answer<&T::IsControlModule>(); }
  virtual bool IsSingleControlModule() const { return Answer<&T::IsSingleControlModule>(); }

  using Classes =
      describe::KindClasses<describe::Asked<ControlModule, &T::IsControlModule>,
                            describe::Asked<SingleControlModuleInst, &T::IsSingleControlModule>>;
  static auto& kindText(auto& object) { return object.Name; }

  static constexpr std::string_view kHelp = "An instance in a list of control modules.";
  static describe::Members members() {
    using namespace describe;
    return Members{
               PutFirst(accessors<&T::Name, &T::SetName>("Name", "Name of the control module."))} +
           Classes::questions();
  }

 protected:
  using KindBase::KindBase;
  IControlModule() = default;
};

class ControlModule final : public describe::Described<ControlModule, IControlModule> {
 public:
  Text Name, TypeName, TaskConnection;
  VisibilityInGraphicsValue VisibilityInGraphics = pxDefault;
  Text Guid, Description;
  Ref<praxen::CMConnections> CMConnections = New<praxen::CMConnections>();
  Ref<praxen::GraphPos> GraphPos = New<praxen::GraphPos>();
  Text CMInstGraphics;
  ReadOnly<Text> TypeGuid, TypePath;
  bool AspectObject = true;
  Text AccessLevel, SafetyType;
  bool ExposePropertiesInParent = false;

  static constexpr std::string_view kHelp = "An instance of a control module type.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::Name>("Name of the control module."),
        property<&T::TypeName>("Control module type."),
        property<&T::TaskConnection>("Name of the task that runs the control module."),
        property<&T::VisibilityInGraphics>(
            "Whether the instance can be seen in its parent's graphics."),
        property<&T::Guid>("GUID of the instance."),
        property<&T::Description>("Free text."),
        property<&T::CMConnections>("Connections of the parameters of the instance."),
        property<&T::GraphPos>("Place of the instance in its parent's graphics."),
        property<&T::CMInstGraphics>("Graphics of the instance as a text."),
        property<&T::TypeGuid>("GUID of the type."),
        property<&T::TypePath>("Path of the type."),
        serialize(),
        property<&T::AspectObject>("Whether the instance is an aspect object."),
        property<&T::AccessLevel>("Access level for safety."),
        property<&T::SafetyType>("Safety type."),
        property<&T::ExposePropertiesInParent>(
            "Whether the parent shows the properties of the instance."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), required<&T::TypeName>(u"Type"),
                           optional<&T::TaskConnection>(), optional<&T::VisibilityInGraphics>(),
                           optional<&T::Guid>(), readOnly<&T::TypeGuid>(), readOnly<&T::TypePath>(),
                           optional<&T::AspectObject>(), optional<&T::ExposePropertiesInParent>(),
                           optional<&T::AccessLevel>(), optional<&T::SafetyType>()},
            .children = {text<&T::CMInstGraphics>(), list<&T::CMConnections>(),
                         text<&T::Description>(), object<&T::GraphPos>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::TypeName>;
  using LongForm = describe::Extended<Form, &T::TaskConnection, &T::VisibilityInGraphics, &T::Guid,
                                      &T::Description, &T::GraphPos>;
};

class SingleControlModuleInst final
    : public describe::Described<SingleControlModuleInst, IControlModule> {
 public:
  Text Name, TaskConnection;
  VisibilityInGraphicsValue VisibilityInGraphics = pxDefault;
  Text TypeGuid = u" "_text;
  Text InstGuid, Description;
  Ref<praxen::CMConnections> CMConnections = New<praxen::CMConnections>();
  Ref<praxen::GraphPos> GraphPos = New<praxen::GraphPos>();
  Text CMInstGraphics, AccessLevel, SafetyType;

  static constexpr std::string_view kHelp =
      "A control module that is its own type, as an instance.";
  static constexpr const char16_t* kElement = u"SingleControlModule";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::Name>("Name of the control module."),
        property<&T::TaskConnection>("Name of the task that runs the control module."),
        property<&T::VisibilityInGraphics>(
            "Whether the instance can be seen in its parent's graphics."),
        property<&T::TypeGuid>("GUID of the type."),
        property<&T::InstGuid>("GUID of the instance."),
        property<&T::Description>("Free text."),
        property<&T::CMConnections>("Connections of the parameters of the instance."),
        property<&T::GraphPos>("Place of the instance in its parent's graphics."),
        property<&T::CMInstGraphics>("Graphics of the instance as a text."),
        serialize(),
        property<&T::AccessLevel>("Access level for safety."),
        property<&T::SafetyType>("Safety type."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), optional<&T::TaskConnection>(),
                           optional<&T::VisibilityInGraphics>(), always<&T::TypeGuid>(),
                           optional<&T::InstGuid>(), optional<&T::AccessLevel>(),
                           optional<&T::SafetyType>()},
            .children = {text<&T::Description>(), text<&T::CMInstGraphics>(),
                         list<&T::CMConnections>(), object<&T::GraphPos>()}};
  }
  using Form = describe::Creation<T, &T::Name>;
  using LongForm = describe::Extended<Form, &T::TaskConnection, &T::VisibilityInGraphics,
                                      &T::TypeGuid, &T::InstGuid, &T::GraphPos>;
};

extern template struct describe::Published<IControlModule>;
extern template struct describe::Published<ControlModule>;
extern template struct describe::Published<SingleControlModuleInst>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_CONTROL_MODULE_H_
