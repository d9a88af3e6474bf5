// DiagramInstance, an instance of a diagram type, and the list of them.
#ifndef PRAXEN_MODEL_POU_DIAGRAM_INSTANCE_H_
#define PRAXEN_MODEL_POU_DIAGRAM_INSTANCE_H_

#include "praxen/model/collection.h"

namespace praxen {

class DiagramInstance final : public describe::Serializable<DiagramInstance> {
 public:
  Text Name, TypeName, Guid, Description;
  bool AspectObject = true, ExposePropertiesInParent = false;
  Text AccessLevel, SafetyType;
  ReadOnly<Text> TypeGuid, TypePath;

  static constexpr std::string_view kHelp = "An instance of a diagram type.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&DiagramInstance::Name>("Name of the instance; required for writing."),
        property<&DiagramInstance::TypeName>("Diagram type; required for writing."),
        property<&DiagramInstance::Guid>("GUID of the instance."),
        property<&DiagramInstance::Description>("Free text."),
        property<&DiagramInstance::AspectObject>("Whether the instance is an aspect object."),
        property<&DiagramInstance::ExposePropertiesInParent>(
            "Whether the parent shows the properties of the instance."),
        property<&DiagramInstance::AccessLevel>("Access level for safety."),
        property<&DiagramInstance::SafetyType>("Safety type."),
        property<&DiagramInstance::TypeGuid>("GUID of the type, as the engineering tool found it."),
        property<&DiagramInstance::TypePath>("Path of the type, as the engineering tool found it."),
        serialize(),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&DiagramInstance::Name>(),
                       required<&DiagramInstance::TypeName>(u"Type"),
                       optional<&DiagramInstance::Guid>(), readOnly<&DiagramInstance::TypeGuid>(),
                       readOnly<&DiagramInstance::TypePath>(),
                       optional<&DiagramInstance::AspectObject>(),
                       optional<&DiagramInstance::ExposePropertiesInParent>(),
                       optional<&DiagramInstance::AccessLevel>(),
                       optional<&DiagramInstance::SafetyType>()},
        .children = {strictText<&DiagramInstance::Description>()}};
  }
  using Form =
      describe::Creation<DiagramInstance, &DiagramInstance::Name, &DiagramInstance::TypeName>;
  using LongForm = describe::Extended<Form, &DiagramInstance::Guid, &DiagramInstance::Description>;
};

class DiagramInstances final : public Collection<DiagramInstances, DiagramInstance> {
 public:
  static constexpr std::string_view kHelp = "Diagram instances, in order.";
};

extern template const describe::ClassDescription& describe::Describe<DiagramInstance>();
extern template const describe::ClassDescription& describe::Describe<DiagramInstances>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_DIAGRAM_INSTANCE_H_
