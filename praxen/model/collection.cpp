// Positions in lists.
#include "praxen/model/collection.h"

#include <limits>

namespace praxen::detail {

using namespace detail;

size_t ToIndex(int32_t position, size_t count) {
  if (position < 1 || static_cast<size_t>(position) > count) throw SubscriptOutOfRange();
  return static_cast<size_t>(position) - 1;
}

void InsertBefore(std::vector<Ref<Object>>& elements, const Ref<Object>& element,
                  int32_t position) {
  if (position < 1 || static_cast<size_t>(position) > elements.size() + 1) throw InvalidArgument();
  elements.insert(elements.begin() + (position - 1), element);
}

int32_t CountOf(const std::vector<Ref<Object>>& elements) {
  if (elements.size() > static_cast<size_t>(std::numeric_limits<int32_t>::max())) throw Overflow();
  return static_cast<int32_t>(elements.size());
}

}  // namespace praxen::detail
