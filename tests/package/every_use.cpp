// A client that uses every creating and reading operation, a list and an object in every way, so
// that all that the public headers need of the library is asked for.
#include "praxen/automation/create_object.h"
#include "praxen/automation/values.h"
#include "praxen/praxen.h"

template class praxen::Collection<praxen::Variables, praxen::Variable>;
template class praxen::Ref<praxen::Variable>;

namespace praxen {

template <class Function>
void Use(Function function) {
  static volatile Function used = function;
  (void)used;
}

void UseEverything() {
#define PRAXEN_OPERATION(Name, ...) Use(&decltype(ObjectFactory::Name)::operator());
#include "praxen/factory/object_factory_operations.inc"
  (void)ReadDocument("").As<Program>();
  (void)AnyValue(1);
  (void)AnyValue(0.5);
  (void)AnyValue(true);
  (void)Text(u8"").utf8();
}

}  // namespace praxen
