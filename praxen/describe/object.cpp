// Counting and destruction of objects.
#include "praxen/describe/object.h"

#include "praxen/core/counters.h"
#include "praxen/core/error.h"
#include "praxen/describe/description.h"

namespace praxen {

using namespace detail;

Object::Object(const ClassDescription& description, Counting counting) : counting_(counting) {
  table = description.interfaceTable();
  if (counting == Counting::Yes) CountObject();
  CountModuleObject(1);
}

Object::~Object() {
  if (counting_ == Counting::Yes) UncountObject();
  CountModuleObject(-1);
}

// Destroying an object releases what it contains. What dies from that is queued, not destroyed at
// once, so a chain of any length needs no more stack than one object. The queue is linked through
// the table pointers, which a dying object no longer needs.
void Object::Destroy() noexcept {
  static constinit Object* doomed = nullptr;
  static constinit bool destroying = false;
  table = reinterpret_cast<const void* const*>(doomed);
  doomed = this;
  if (destroying) return;
  destroying = true;
  while (doomed != nullptr) {
    Object* const next = doomed;
    doomed = reinterpret_cast<Object*>(const_cast<const void**>(next->table));
    delete next;
  }
  destroying = false;
}

}  // namespace praxen

namespace praxen::detail {

void ThrowMissingObject() { throw MissingObject(); }

void ThrowTypeMismatch() { throw TypeMismatch(); }

}  // namespace praxen::detail
