// DiagramInstance, an instance of a diagram type, and the list of them.
#ifndef PRAXEN_MODEL_POU_DIAGRAM_INSTANCE_H_
#define PRAXEN_MODEL_POU_DIAGRAM_INSTANCE_H_

#include "praxen/model/collection.h"

namespace praxen {

class DiagramInstance final : public Serializable<DiagramInstance> {
 public:
  Text Name, TypeName, Guid, Description;
  bool AspectObject = true, ExposePropertiesInParent = false;
  Text AccessLevel, SafetyType;
  ReadOnly<Text> TypeGuid, TypePath;

  static constexpr std::string_view kHelp = "An instance of a diagram type.";
  static Members members() {
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
  static Layout layout() {
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
  using Form = Creation<DiagramInstance, &DiagramInstance::Name, &DiagramInstance::TypeName>;
  using LongForm = Extended<Form, &DiagramInstance::Guid, &DiagramInstance::Description>;
};

class DiagramInstances final : public Collection<DiagramInstances, DiagramInstance> {
 public:
  static constexpr std::string_view kHelp = "Diagram instances, in order.";
};

extern template const ClassDescription& Describe<DiagramInstance>();
extern template const ClassDescription& Describe<DiagramInstances>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_DIAGRAM_INSTANCE_H_
