// InitValue, the value with which one variable of a unit starts, and the list of them.
#ifndef PRAXEN_MODEL_DATA_INIT_VALUE_H_
#define PRAXEN_MODEL_DATA_INIT_VALUE_H_

#include "praxen/model/collection.h"

namespace praxen {

class InitValue final : public describe::Serializable<InitValue> {
 public:
  Text POUPath, Name, Value;

  static constexpr std::string_view kHelp = "The value with which one variable of a unit starts.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::POUPath>("Path of the unit that holds the variable."),
        property<&T::Name>("Name of the variable."),
        property<&T::Value>("Value at start."),
        serialize(),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {optional<&T::POUPath>(), required<&T::Name>(), always<&T::Value>()}};
  }
  using Form = describe::Creation<T, &T::POUPath, &T::Name, &T::Value>;
};

class InitValues final : public Collection<InitValues, InitValue> {
 public:
  static constexpr std::string_view kHelp = "Initial values, in order.";

  /// The first initial value of that variable; an empty reference when there is none.
  Ref<InitValue> Find(const Text& POUPath, const Text& Name) const;
  /// The position of the first initial value of that variable; -1 when there is none.
  int32_t FindNr(const Text& POUPath, const Text& Name) const;

  static describe::Members members() {
    using namespace describe;
    const std::vector<std::string_view> keys{detail::EntityName<&InitValue::POUPath>(),
                                             detail::EntityName<&InitValue::Name>()};
    return additions() +
           Members{method<&T::Find>("The first initial value of that variable, or nothing.", keys),
                   method<&T::FindNr>(
                       "The position of the first initial value of that variable, or -1.", keys)} +
           positions();
  }
};

extern template struct describe::Published<InitValue>;
extern template struct describe::Published<InitValues>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_INIT_VALUE_H_
