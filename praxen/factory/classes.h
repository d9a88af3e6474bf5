// The published classes.
#ifndef PRAXEN_FACTORY_CLASSES_H_
#define PRAXEN_FACTORY_CLASSES_H_

#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "praxen/core/uuid.h"
#include "praxen/describe/description.h"

namespace praxen::detail {

/// Every published class in the order of its name, the three kind interfaces that cannot be created
/// included.
std::span<const std::reference_wrapper<const ClassDescription>> AllClasses();

/// The classes whose objects can be used where an object of a class is wanted: of a kind the
/// classes that implement it, else the class alone.
std::vector<const ClassDescription*> ClassesOf(const ClassDescription& wanted);

/// The published class of that name in any letter case; null when there is none.
const ClassDescription* FindClass(std::u16string_view name);

/// The published class of that identifier; null when there is none.
const ClassDescription* FindClassById(const Uuid& id);

}  // namespace praxen::detail

#endif  // PRAXEN_FACTORY_CLASSES_H_
