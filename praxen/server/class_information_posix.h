// What late-bound clients are told of the classes where there is no type information.
#ifndef PRAXEN_SERVER_CLASS_INFORMATION_POSIX_H_
#define PRAXEN_SERVER_CLASS_INFORMATION_POSIX_H_

#include "praxen/automation/automation.h"

#pragma GCC visibility push(default)

// The texts are lines of fields that tabs separate, each line ended by a line feed, in ASCII. They
// belong to the library and stay as long as it is loaded; null is returned when memory is short.

extern "C" {

/// The creatable classes: programmatic identifier, class identifier.
const char* PraxenClasses() noexcept;

/// The members of a class, given by its name in any letter case, in interface order, then those of
/// the kind it implements: what it is ("property", "readonly", "method" or "enumerator"), its name,
/// and the names of its parameters. Null for the name of no published class.
const char* PraxenMembers(const char* className) noexcept;

/// The constants of all enumerations: name, value.
const char* PraxenConstants() noexcept;

/// The name of the published class of an object; null when the object is not of this library.
const char* PraxenClassOf(IUnknown* object) noexcept;

}  // extern "C"

#pragma GCC visibility pop

#endif  // PRAXEN_SERVER_CLASS_INFORMATION_POSIX_H_
