// ControlModule, an instance of a control module type.
#ifndef PRAXEN_MODEL_POU_CONTROL_MODULE_H_
#define PRAXEN_MODEL_POU_CONTROL_MODULE_H_

#include "praxen/model/pou/cm_connection.h"
#include "praxen/model/pou/graph_pos.h"
#include "praxen/model/pou/i_control_module.h"

namespace praxen {

class ControlModule final : public ControlModuleInstance<ControlModule> {
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
        property<&ControlModule::Name>("Name of the control module; required for writing."),
        property<&ControlModule::TypeName>("Control module type; required for writing."),
        property<&ControlModule::TaskConnection>("Name of the task that runs the control module."),
        property<&ControlModule::VisibilityInGraphics>(
            "Whether the instance can be seen in its parent's graphics."),
        property<&ControlModule::Guid>("GUID of the instance."),
        property<&ControlModule::Description>("Free text."),
        property<&ControlModule::CMConnections>("Connections of the parameters of the instance."),
        property<&ControlModule::GraphPos>("Place of the instance in its parent's graphics."),
        property<&ControlModule::CMInstGraphics>("Graphics of the instance as a text."),
        property<&ControlModule::TypeGuid>("GUID of the type, as the engineering tool found it."),
        property<&ControlModule::TypePath>("Path of the type, as the engineering tool found it."),
        serialize(),
        property<&ControlModule::AspectObject>("Whether the instance is an aspect object."),
        property<&ControlModule::AccessLevel>("Access level for safety."),
        property<&ControlModule::SafetyType>("Safety type."),
        property<&ControlModule::ExposePropertiesInParent>(
            "Whether the parent shows the properties of the instance."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&ControlModule::Name>(),
                       required<&ControlModule::TypeName>(u"Type"),
                       optional<&ControlModule::TaskConnection>(),
                       optional<&ControlModule::VisibilityInGraphics>(),
                       optional<&ControlModule::Guid>(), readOnly<&ControlModule::TypeGuid>(),
                       readOnly<&ControlModule::TypePath>(),
                       optional<&ControlModule::AspectObject>(),
                       optional<&ControlModule::ExposePropertiesInParent>(),
                       optional<&ControlModule::AccessLevel>(),
                       optional<&ControlModule::SafetyType>()},
        .children = {text<&ControlModule::CMInstGraphics>(), list<&ControlModule::CMConnections>(),
                     text<&ControlModule::Description>(), object<&ControlModule::GraphPos>()}};
  }
  using Form = describe::Creation<ControlModule, &ControlModule::Name, &ControlModule::TypeName>;
  using LongForm = describe::Extended<Form, &ControlModule::TaskConnection,
                                      &ControlModule::VisibilityInGraphics, &ControlModule::Guid,
                                      &ControlModule::Description, &ControlModule::GraphPos>;
};

extern template const describe::ClassDescription& describe::Describe<ControlModule>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_CONTROL_MODULE_H_
