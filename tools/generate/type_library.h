// The source of the type library, from the descriptions of classes and enumerations.
#ifndef PRAXEN_TOOLS_GENERATE_TYPE_LIBRARY_H_
#define PRAXEN_TOOLS_GENERATE_TYPE_LIBRARY_H_

#include <string>
#include <string_view>

#include "praxen/describe/description.h"

namespace praxen::detail {

/// The type as interface definitions spell it: "BSTR", "_Variable*", "DirectionValue".
std::string TypeLibraryType(const ValueType& type);

/// The interface definition of the whole library.
std::string GenerateTypeLibrary();

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_GENERATE_TYPE_LIBRARY_H_
