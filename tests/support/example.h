// Objects with every property set, made from their descriptions alone.
#ifndef PRAXEN_TESTS_SUPPORT_EXAMPLE_H_
#define PRAXEN_TESTS_SUPPORT_EXAMPLE_H_

#include <string>

#include "praxen/describe/object.h"

namespace praxen::detail {

/// Sets every property that clients can set to a value other than that of a new object, no two
/// texts alike, and puts an element of every class that it can hold into each list. Objects
/// `depth` levels below are filled too; deeper ones get only what writing requires.
void FillExample(Object& object, int depth);

/// Gives what writing requires a value where it has none.
void FillRequired(Object& object);

/// The element of an object as a document with LF line ends, whether or not it can serialize
/// itself.
std::string ExampleDocument(Object& object);

}  // namespace praxen::detail

#endif  // PRAXEN_TESTS_SUPPORT_EXAMPLE_H_
