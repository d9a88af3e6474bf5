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
        property<&T::Name>("Name of the instance."),
        property<&T::TypeName>("Diagram type."),
        property<&T::Guid>("GUID of the instance."),
        property<&T::Description>("Free text."),
        property<&T::AspectObject>("Whether the instance is an aspect object."),
        property<&T::ExposePropertiesInParent>(
            "Whether the parent shows the properties of the instance."),
        property<&T::AccessLevel>("Access level for safety."),
        property<&T::SafetyType>("Safety type."),
        property<&T::TypeGuid>("GUID of the type."),
        property<&T::TypePath>("Path of the type."),
        serialize(),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), required<&T::TypeName>(u"Type"),
                           optional<&T::Guid>(), readOnly<&T::TypeGuid>(), readOnly<&T::TypePath>(),
                           optional<&T::AspectObject>(), optional<&T::ExposePropertiesInParent>(),
                           optional<&T::AccessLevel>(), optional<&T::SafetyType>()},
            .children = {strictText<&T::Description>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::TypeName>;
  using LongForm = describe::Extended<Form, &T::Guid, &T::Description>;
};

class DiagramInstances final : public Collection<DiagramInstances, DiagramInstance> {
 public:
  static constexpr std::string_view kHelp = "Diagram instances, in order.";
};

extern template struct describe::Published<DiagramInstance>;
extern template struct describe::Published<DiagramInstances>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_DIAGRAM_INSTANCE_H_
