// ExtensibleParameter, a parameter of a function block type that instances can repeat, and the list
// of them.
#ifndef PRAXEN_MODEL_DATA_EXTENSIBLE_PARAMETER_H_
#define PRAXEN_MODEL_DATA_EXTENSIBLE_PARAMETER_H_

#include "praxen/model/collection.h"

namespace praxen {

class ExtensibleParameter final : public describe::Serializable<ExtensibleParameter> {
 public:
  Text Name, TypeName;
  Text PXAttribute = u"retain"_text;
  DirectionValue Direction = pxIn;
  Text InitialValue, Description, AccessLevel, SafetyType;
  ReadOnly<Text> TypeGuid, TypePath;
  Text FDPort = u"yes"_text;

  static constexpr std::string_view kHelp =
      "A parameter of a function block type that instances can repeat.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&ExtensibleParameter::Name>("Name of the parameter; required for writing."),
        property<&ExtensibleParameter::TypeName>("Data type; required for writing."),
        property<&ExtensibleParameter::PXAttribute>("Attributes such as retain or constant."),
        property<&ExtensibleParameter::Direction>("Direction of the parameter."),
        property<&ExtensibleParameter::InitialValue>("Value at start."),
        property<&ExtensibleParameter::Description>("Free text."),
        serialize(),
        property<&ExtensibleParameter::AccessLevel>("Access level for safety."),
        property<&ExtensibleParameter::SafetyType>("Safety type."),
        property<&ExtensibleParameter::TypeGuid>(
            "GUID of the data type, as the engineering tool found it."),
        property<&ExtensibleParameter::TypePath>(
            "Path of the data type, as the engineering tool found it."),
        property<&ExtensibleParameter::FDPort>(
            "Whether function diagrams show the parameter as a port; yes or no."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&ExtensibleParameter::Name>(),
                           required<&ExtensibleParameter::TypeName>(u"Type"),
                           always<&ExtensibleParameter::PXAttribute>(u"Attribute"),
                           always<&ExtensibleParameter::Direction>(),
                           optional<&ExtensibleParameter::FDPort>(),
                           optional<&ExtensibleParameter::InitialValue>(),
                           readOnly<&ExtensibleParameter::TypeGuid>(),
                           readOnly<&ExtensibleParameter::TypePath>(),
                           optional<&ExtensibleParameter::AccessLevel>(),
                           optional<&ExtensibleParameter::SafetyType>()},
            .children = {strictText<&ExtensibleParameter::Description>()}};
  }
  using Form = describe::Creation<ExtensibleParameter, &ExtensibleParameter::Name,
                                  &ExtensibleParameter::TypeName>;
  using LongForm =
      describe::Extended<Form, &ExtensibleParameter::PXAttribute, &ExtensibleParameter::Direction,
                         &ExtensibleParameter::InitialValue, &ExtensibleParameter::Description>;
};

class ExtensibleParameters final : public Collection<ExtensibleParameters, ExtensibleParameter> {
 public:
  static constexpr std::string_view kHelp = "Extensible parameters, in order.";
};

extern template const describe::ClassDescription& describe::Describe<ExtensibleParameter>();
extern template const describe::ClassDescription& describe::Describe<ExtensibleParameters>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_EXTENSIBLE_PARAMETER_H_
