// DataType, a structured data type.
#ifndef PRAXEN_MODEL_DATA_DATA_TYPE_H_
#define PRAXEN_MODEL_DATA_DATA_TYPE_H_

#include "praxen/model/data/component.h"

namespace praxen {

class DataType final : public describe::Serializable<DataType> {
 public:
  Text Name;
  bool Protected = false, Hidden = false;
  ScopeValue Scope = pxPublic;
  Text Description, Guid, ReservedByFunction;
  Ref<praxen::Components> Components = New<praxen::Components>();

  static constexpr std::string_view kHelp = "A structured data type.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&DataType::Name>("Name of the data type; required for writing."),
        property<&DataType::Protected>("Whether the type is protected."),
        property<&DataType::Hidden>("Whether the type is hidden from users."),
        property<&DataType::Scope>("Where the type can be used."),
        property<&DataType::Description>("Free text."),
        property<&DataType::Guid>("GUID of the type."),
        property<&DataType::ReservedByFunction>("Function that the type is reserved by."),
        property<&DataType::Components>("Components of the data type."),
        serialize(),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = POUHeader<DataType>(
                {optional<&DataType::Guid>(), optional<&DataType::ReservedByFunction>()}),
            .children = {list<&DataType::Components>(), strictText<&DataType::Description>()}};
  }
  using Form = describe::Creation<DataType, &DataType::Name, &DataType::Description>;
  using LongForm =
      describe::Extended<Form, &DataType::Protected, &DataType::Hidden, &DataType::Scope>;
};

extern template const describe::ClassDescription& describe::Describe<DataType>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_DATA_TYPE_H_
