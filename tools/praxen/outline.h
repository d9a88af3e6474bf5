// The outline of an object: itself and all below it, as a tree of lines.
#ifndef PRAXEN_TOOLS_PRAXEN_OUTLINE_H_
#define PRAXEN_TOOLS_PRAXEN_OUTLINE_H_

#include <cstddef>
#include <ostream>

#include "praxen/describe/object.h"
#include "tools/praxen/terminal.h"

namespace praxen::detail {

/// Prints what descriptions know of the object: class, required properties, and the properties that
/// differ from those of a new object; code on lines of its own; lists with the number of their
/// elements. `depth` is the number of levels below the first.
void PrintOutline(Object& object, size_t depth, const Colours& colours, std::ostream& stream);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_OUTLINE_H_
