// CommVariable, a variable that is communicated between controllers, and the list of them.
#ifndef PRAXEN_MODEL_DATA_COMM_VARIABLE_H_
#define PRAXEN_MODEL_DATA_COMM_VARIABLE_H_

#include "praxen/model/collection.h"

namespace praxen {

class CommVariable final : public describe::Serializable<CommVariable> {
 public:
  Text Name, TypeName;
  Text PXAttribute = u"retain"_text;
  Text InitialValue;
  Text Direction = u"in"_text;
  Text IPAddress = u"auto"_text;
  Text IntervalTime = u"normal"_text;
  Text Priority = u"normal"_text;
  Text ISPValue, ReadPermission, Description;
  ReadOnly<Text> TypeGuid, TypePath;
  Text ExpectedSIL = u"same"_text;
  int32_t UniqueID = 0;
  bool RestrictedSIL = false;
  Text AcknowledgeGroup;

  static constexpr std::string_view kHelp = "A variable that is communicated between controllers.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&CommVariable::Name>("Name of the variable; required for writing."),
        property<&CommVariable::TypeName>("Data type; required for writing."),
        property<&CommVariable::PXAttribute>("Attributes such as retain or constant."),
        property<&CommVariable::InitialValue>("Value at start."),
        property<&CommVariable::Direction>(
            "Direction of the communication as a free text, such as in or out."),
        property<&CommVariable::IPAddress>("Address of the communication partner, or auto."),
        property<&CommVariable::IntervalTime>(
            "How often the variable is communicated; normal or another interval."),
        property<&CommVariable::Priority>("Priority of the communication; normal or another."),
        property<&CommVariable::ISPValue>("Value that is used when the communication fails."),
        property<&CommVariable::ReadPermission>("Permission that reading needs."),
        property<&CommVariable::Description>("Free text."),
        property<&CommVariable::TypeGuid>(
            "GUID of the data type, as the engineering tool found it."),
        property<&CommVariable::TypePath>(
            "Path of the data type, as the engineering tool found it."),
        serialize(),
        property<&CommVariable::ExpectedSIL>(
            "Safety integrity level expected of the partner; same or another."),
        property<&CommVariable::UniqueID>(
            "Number that identifies the variable; 0 when none is given."),
        property<&CommVariable::RestrictedSIL>("Whether the variable is restricted in its safety "
                                               "integrity level; not part of the XML."),
        property<&CommVariable::AcknowledgeGroup>("Group in which the variable is acknowledged."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&CommVariable::Name>(), required<&CommVariable::TypeName>(u"Type"),
                       always<&CommVariable::PXAttribute>(u"Attribute"),
                       always<&CommVariable::Direction>(), optional<&CommVariable::InitialValue>(),
                       optional<&CommVariable::ISPValue>(), optional<&CommVariable::Priority>(),
                       optional<&CommVariable::IntervalTime>(),
                       optional<&CommVariable::IPAddress>(),
                       optional<&CommVariable::ReadPermission>(),
                       optional<&CommVariable::ExpectedSIL>(), optional<&CommVariable::UniqueID>(),
                       optional<&CommVariable::AcknowledgeGroup>(),
                       readOnly<&CommVariable::TypeGuid>(), readOnly<&CommVariable::TypePath>()},
        .children = {text<&CommVariable::Description>()}};
  }
  using Form = describe::Creation<CommVariable, &CommVariable::Name, &CommVariable::TypeName,
                                  &CommVariable::Direction>;
  using LongForm = describe::Extended<Form, &CommVariable::PXAttribute, &CommVariable::InitialValue,
                                      &CommVariable::ISPValue, &CommVariable::Priority,
                                      &CommVariable::IntervalTime, &CommVariable::ReadPermission,
                                      &CommVariable::Description>;
};

class CommVariables final : public Collection<CommVariables, CommVariable> {
 public:
  static constexpr std::string_view kHelp = "Communication variables, in order.";
};

extern template const describe::ClassDescription& describe::Describe<CommVariable>();
extern template const describe::ClassDescription& describe::Describe<CommVariables>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_COMM_VARIABLE_H_
