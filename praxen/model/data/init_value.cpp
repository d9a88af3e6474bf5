// The look-up of initial values, which have two keys.
#include "praxen/model/data/init_value.h"

namespace praxen {

using namespace detail;

Ref<InitValue> InitValues::Find(const Text& POUPath, const Text& Name) const {
  const int32_t position = FindNr(POUPath, Name);
  return position < 0 ? Ref<InitValue>() : Item(position);
}

int32_t InitValues::FindNr(const Text& POUPath, const Text& Name) const {
  return PositionOf(
      [&](const InitValue& value) { return value.POUPath == POUPath && value.Name == Name; });
}

}  // namespace praxen
