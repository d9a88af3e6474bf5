// Identifiers made from names.
#include "praxen/describe/identifiers.h"

namespace praxen::describe {

namespace {

constexpr GUID kTypeLibraryId = ToGuid(NamedIdentifier("library PraxenHelper"));

}  // namespace

GUID ClassId(const ClassDescription& description) { return ToGuid(description.classId); }

GUID InterfaceId(const ClassDescription& description) { return ToGuid(description.interfaceId); }

GUID EnumerationId(const EnumerationDescription& enumeration) {
  return ToGuid(NamedIdentifier("enumeration ", enumeration.name));
}

GUID TypeLibraryId() { return kTypeLibraryId; }

std::string InterfaceName(const ClassDescription& description) {
  return "_" + std::string(description.name);
}

}  // namespace praxen::describe
