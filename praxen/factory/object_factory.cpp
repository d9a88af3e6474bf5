// The operations of the factory as published members.
#include "praxen/factory/object_factory.h"

#include "praxen/describe/define.h"

namespace praxen {

using namespace detail;

Members ObjectFactory::members() {
  return {
#define PRAXEN_OPERATION(Name, Type) operation<ObjectFactory, Name>(),
#include "praxen/factory/object_factory_operations.inc"
  };
}

template struct describe::Published<ObjectFactory>;

}  // namespace praxen
