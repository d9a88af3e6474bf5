// InitValue, the value with which one variable of a unit starts, and the list of them.
#ifndef PRAXEN_MODEL_DATA_INIT_VALUE_H_
#define PRAXEN_MODEL_DATA_INIT_VALUE_H_

#include "praxen/model/collection.h"

namespace praxen {

class InitValue final : public Serializable<InitValue> {
 public:
  Text POUPath, Name, Value;

  static constexpr std::string_view kHelp = "The value with which one variable of a unit starts.";
  static Members members() {
    return {
        property<&InitValue::POUPath>("Path of the unit that holds the variable."),
        property<&InitValue::Name>("Name of the variable; required for writing."),
        property<&InitValue::Value>("Value at start."),
        serialize(),
    };
  }
  static Layout layout() {
    return {.attributes = {optional<&InitValue::POUPath>(), required<&InitValue::Name>(),
                           always<&InitValue::Value>()}};
  }
  using Form = Creation<InitValue, &InitValue::POUPath, &InitValue::Name, &InitValue::Value>;
};

class InitValues final : public Collection<InitValues, InitValue> {
 public:
  static constexpr std::string_view kHelp = "Initial values, in order.";

  /// The first initial value of that variable; an empty reference when there is none.
  Ref<InitValue> Find(const Text& POUPath, const Text& Name) const;
  /// The position of the first initial value of that variable; -1 when there is none.
  int32_t FindNr(const Text& POUPath, const Text& Name) const;

  static Members members() {
    const std::vector<std::string_view> keys{EntityName<&InitValue::POUPath>(),
                                             EntityName<&InitValue::Name>()};
    return additions() +
           Members{method<&InitValues::Find>(
                       "The first initial value of that variable, or nothing.", keys),
                   method<&InitValues::FindNr>(
                       "The position of the first initial value of that variable, or -1.", keys)} +
           positions();
  }
};

extern template const ClassDescription& Describe<InitValue>();
extern template const ClassDescription& Describe<InitValues>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_INIT_VALUE_H_
