// The tree of objects as descriptions show it.
#ifndef PRAXEN_TOOLS_PRAXEN_OBJECT_TREE_H_
#define PRAXEN_TOOLS_PRAXEN_OBJECT_TREE_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

#include "praxen/describe/description.h"

namespace praxen::detail {

/// The attributes of a class's element; none for a class that writes itself.
const std::vector<Attribute>& AttributesOf(const ClassDescription& description);

/// The children of a class's element; none for a class that writes itself.
const std::vector<Child>& ChildrenOf(const ClassDescription& description);

/// What a property holds that is no object; enumerations hold their numbers.
using Value = std::variant<Text, bool, int32_t, double>;

/// The value of a property that can be set or that reading fills; none for objects, methods and
/// what is computed.
std::optional<Value> ValueOf(Object& object, const Member& member);

/// The list or object that a child holds; null for texts and where there is none.
Object* Held(Object& object, const Child& child);

/// How many objects there are from this one down. Lists inside of others are not counted: they are
/// there whether or not a document has them.
size_t CountObjects(Object& object);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_OBJECT_TREE_H_
