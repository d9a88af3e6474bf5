// The question whether an object behind an interface pointer is one of this library.
#ifndef PRAXEN_DESCRIBE_OWN_OBJECT_H_
#define PRAXEN_DESCRIBE_OWN_OBJECT_H_

#include "praxen/automation/automation.h"
#include "praxen/describe/object.h"

namespace praxen::describe {

/// The object of this library behind an interface pointer that is not null; an empty reference for
/// a foreign one. The pointer is asked for an interface that only our objects have, and the object
/// itself has to confirm that it was asked: one that answers whatever it is asked for is foreign,
/// and as nothing that it answers can be relied on, `TypeMismatch` is raised for it.
Ref<Object> OwnObjectBehind(Interface* pointer);

/// Whether the identifier is that of this interface; the object, whose interface it then is,
/// confirms that it was asked. The identifier counts by its address, so that the objects of another
/// copy of the library in the same process are foreign. Raises `std::bad_alloc`.
bool ConfirmOwnObject(const Object& object, REFIID iid);

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_OWN_OBJECT_H_
