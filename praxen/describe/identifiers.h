// The identifiers under which clients know the type library, its classes and its interfaces.
#ifndef PRAXEN_DESCRIBE_IDENTIFIERS_H_
#define PRAXEN_DESCRIBE_IDENTIFIERS_H_

#include "praxen/describe/description.h"
#include "praxen/platform/automation.h"

namespace praxen {

/// The namespace of all identifiers, which are name-based: version 5 of RFC 4122.
inline constexpr GUID kIdentifierNamespace = {
    0x5c3ad0a4, 0x6a0f, 0x4d0e, {0x9b, 0x6e, 0x2f, 0x81, 0xd7, 0x43, 0x1e, 0x58}};

GUID ClassId(const ClassDescription& description);
GUID InterfaceId(const ClassDescription& description);
GUID EnumerationId(const EnumerationDescription& enumeration);
GUID TypeLibraryId();

/// The class of that identifier; null when the library has none.
const ClassDescription* FindClassById(const GUID& id);

/// The interface that only objects of this library answer; through it an object is recognised. It
/// counts by its address, which another copy of the library in the same process does not share.
const GUID& OwnObjectId() noexcept;

}  // namespace praxen

#endif  // PRAXEN_DESCRIBE_IDENTIFIERS_H_
