// ObjectFactory, which creates every class of the model and reads it from XML.
#ifndef PRAXEN_FACTORY_OBJECT_FACTORY_H_
#define PRAXEN_FACTORY_OBJECT_FACTORY_H_

#include "praxen/factory/deserialization.h"
#include "praxen/model/model.h"

namespace praxen {

/// Every `New…` operation creates an object of the class it names and sets the properties that its
/// form lists from its arguments; every `Deserialize…` operation reads a document of its class. The
/// operations are callable constants: `ObjectFactory::NewVariable(u"Level", u"real")`. The list of
/// them is object_factory_operations.inc.
class ObjectFactory final : public describe::Described<ObjectFactory> {
 public:
#define PRAXEN_OPERATION(Name, Type) static constexpr Type Name{};
#include "praxen/factory/object_factory_operations.inc"

  static constexpr std::string_view kHelp = "Creates objects and reads them from XML.";
  static describe::Members members();
};

extern template struct describe::Published<ObjectFactory>;

}  // namespace praxen

#endif  // PRAXEN_FACTORY_OBJECT_FACTORY_H_
