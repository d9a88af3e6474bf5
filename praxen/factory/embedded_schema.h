// The copy of the schema that is compiled into the library.
#ifndef PRAXEN_FACTORY_EMBEDDED_SCHEMA_H_
#define PRAXEN_FACTORY_EMBEDDED_SCHEMA_H_

#include <string_view>

namespace praxen::detail {

/// The bytes of the shipped "PraxenSchema3_0.xsd".
std::string_view EmbeddedSchema();

}  // namespace praxen::detail

#endif  // PRAXEN_FACTORY_EMBEDDED_SCHEMA_H_
