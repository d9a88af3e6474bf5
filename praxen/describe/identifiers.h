// The identifiers under which clients know the type library, its classes and its interfaces.
#ifndef PRAXEN_DESCRIBE_IDENTIFIERS_H_
#define PRAXEN_DESCRIBE_IDENTIFIERS_H_

#include <string>
#include <string_view>

#include "praxen/automation/guid.h"
#include "praxen/describe/description.h"

namespace praxen::describe {

inline constexpr std::string_view kTypeLibraryVersion = "3.16";
inline constexpr std::string_view kTypeLibraryHelp = "PraxenHelper 3.16";

GUID ClassId(const ClassDescription& description);
GUID InterfaceId(const ClassDescription& description);
GUID EnumerationId(const EnumerationDescription& enumeration);
GUID TypeLibraryId();

/// The name of a class's default interface, such as "_Variable".
std::string InterfaceName(const ClassDescription& description);

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_IDENTIFIERS_H_
