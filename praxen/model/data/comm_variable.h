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
        property<&T::Name>("Name of the variable."),
        property<&T::TypeName>("Data type."),
        property<&T::PXAttribute>("Attributes such as retain or constant."),
        property<&T::InitialValue>("Value at start."),
        property<&T::Direction>(
            "Direction of the communication as a free text, such as in or out."),
        property<&T::IPAddress>("Address of the communication partner, or auto."),
        property<&T::IntervalTime>(
            "How often the variable is communicated; normal or another interval."),
        property<&T::Priority>("Priority of the communication; normal or another."),
        property<&T::ISPValue>("Value that is used when the communication fails."),
        property<&T::ReadPermission>("Permission that reading needs."),
        property<&T::Description>("Free text."),
        property<&T::TypeGuid>("GUID of the data type."),
        property<&T::TypePath>("Path of the data type."),
        serialize(),
        property<&T::ExpectedSIL>(
            "Safety integrity level expected of the partner; same or another."),
        property<&T::UniqueID>("Number that identifies the variable; 0 when none is given."),
        property<&T::RestrictedSIL>("Whether the variable is restricted in its safety "
                                    "integrity level; not part of the XML."),
        property<&T::AcknowledgeGroup>("Group in which the variable is acknowledged."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), required<&T::TypeName>(u"Type"),
                           always<&T::PXAttribute>(u"Attribute"), always<&T::Direction>(),
                           optional<&T::InitialValue>(), optional<&T::ISPValue>(),
                           optional<&T::Priority>(), optional<&T::IntervalTime>(),
                           optional<&T::IPAddress>(), optional<&T::ReadPermission>(),
                           optional<&T::ExpectedSIL>(), optional<&T::UniqueID>(),
                           optional<&T::AcknowledgeGroup>(), readOnly<&T::TypeGuid>(),
                           readOnly<&T::TypePath>()},
            .children = {text<&T::Description>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::TypeName, &T::Direction>;
  using LongForm =
      describe::Extended<Form, &T::PXAttribute, &T::InitialValue, &T::ISPValue, &T::Priority,
                         &T::IntervalTime, &T::ReadPermission, &T::Description>;
};

class CommVariables final : public Collection<CommVariables, CommVariable> {
 public:
  static constexpr std::string_view kHelp = "Communication variables, in order.";
};

extern template struct describe::Published<CommVariable>;
extern template struct describe::Published<CommVariables>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_COMM_VARIABLE_H_
