// The source of the type library, from the descriptions of classes and enumerations.
#ifndef PRAXEN_DESCRIBE_TYPE_LIBRARY_H_
#define PRAXEN_DESCRIBE_TYPE_LIBRARY_H_

#include <string>
#include <string_view>

#include "praxen/describe/description.h"

namespace praxen {

inline constexpr std::string_view kTypeLibraryVersion = "3.16";
inline constexpr std::string_view kTypeLibraryHelp = "PraxenHelper 3.16";

/// The name of a class's default interface, such as "_Variable".
std::string InterfaceName(const ClassDescription& description);

/// The type as interface definitions spell it: "BSTR", "_Variable*", "DirectionValue".
std::string TypeLibraryType(const ValueType& type);

/// The interface definition of the whole library.
std::string GenerateTypeLibrary();

}  // namespace praxen

#endif  // PRAXEN_DESCRIBE_TYPE_LIBRARY_H_
