// SingleControlModuleInst, a control module that is its own type, as an instance.
#ifndef PRAXEN_MODEL_POU_SINGLE_CONTROL_MODULE_INST_H_
#define PRAXEN_MODEL_POU_SINGLE_CONTROL_MODULE_INST_H_

#include "praxen/model/pou/cm_connection.h"
#include "praxen/model/pou/graph_pos.h"
#include "praxen/model/pou/i_control_module.h"

namespace praxen {

class SingleControlModuleInst final : public ControlModuleInstance<SingleControlModuleInst> {
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
        property<&SingleControlModuleInst::Name>(
            "Name of the control module; required for writing."),
        property<&SingleControlModuleInst::TaskConnection>(
            "Name of the task that runs the control module."),
        property<&SingleControlModuleInst::VisibilityInGraphics>(
            "Whether the instance can be seen in its parent's graphics."),
        property<&SingleControlModuleInst::TypeGuid>("GUID of the type."),
        property<&SingleControlModuleInst::InstGuid>("GUID of the instance."),
        property<&SingleControlModuleInst::Description>("Free text."),
        property<&SingleControlModuleInst::CMConnections>(
            "Connections of the parameters of the instance."),
        property<&SingleControlModuleInst::GraphPos>(
            "Place of the instance in its parent's graphics."),
        property<&SingleControlModuleInst::CMInstGraphics>("Graphics of the instance as a text."),
        serialize(),
        property<&SingleControlModuleInst::AccessLevel>("Access level for safety."),
        property<&SingleControlModuleInst::SafetyType>("Safety type."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&SingleControlModuleInst::Name>(),
                           optional<&SingleControlModuleInst::TaskConnection>(),
                           optional<&SingleControlModuleInst::VisibilityInGraphics>(),
                           always<&SingleControlModuleInst::TypeGuid>(),
                           optional<&SingleControlModuleInst::InstGuid>(),
                           optional<&SingleControlModuleInst::AccessLevel>(),
                           optional<&SingleControlModuleInst::SafetyType>()},
            .children = {text<&SingleControlModuleInst::Description>(),
                         text<&SingleControlModuleInst::CMInstGraphics>(),
                         list<&SingleControlModuleInst::CMConnections>(),
                         object<&SingleControlModuleInst::GraphPos>()}};
  }
  using Form = describe::Creation<SingleControlModuleInst, &SingleControlModuleInst::Name>;
  using LongForm =
      describe::Extended<Form, &SingleControlModuleInst::TaskConnection,
                         &SingleControlModuleInst::VisibilityInGraphics,
                         &SingleControlModuleInst::TypeGuid, &SingleControlModuleInst::InstGuid,
                         &SingleControlModuleInst::GraphPos>;
};

extern template const describe::ClassDescription& describe::Describe<SingleControlModuleInst>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_SINGLE_CONTROL_MODULE_INST_H_
