// What answers for the user's locale.
#include "praxen/core/locale.h"

#include <atomic>

namespace praxen::detail {

namespace {

std::atomic<DecimalSeparatorQuery> substitute = nullptr;

}  // namespace

std::u16string GetDecimalSeparator() {
  const DecimalSeparatorQuery query = substitute.load();
  return query != nullptr ? query() : SystemDecimalSeparator();
}

DecimalSeparatorQuery SetDecimalSeparatorQuery(DecimalSeparatorQuery query) {
  return substitute.exchange(query);
}

}  // namespace praxen::detail
