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
        property<&T::Name>("Name of the data type."),
        property<&T::Protected>("Whether the type is protected."),
        property<&T::Hidden>("Whether the type is hidden from users."),
        property<&T::Scope>("Where the type can be used."),
        property<&T::Description>("Free text."),
        property<&T::Guid>("GUID of the type."),
        property<&T::ReservedByFunction>("Function that the type is reserved by."),
        property<&T::Components>("Components of the data type."),
        serialize(),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = POUHeader<T>({optional<&T::Guid>(), optional<&T::ReservedByFunction>()}),
            .children = {list<&T::Components>(), strictText<&T::Description>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::Description>;
  using LongForm = describe::Extended<Form, &T::Protected, &T::Hidden, &T::Scope>;
};

extern template struct describe::Published<DataType>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_DATA_TYPE_H_
