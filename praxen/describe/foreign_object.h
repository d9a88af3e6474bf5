// ForeignObject, which stands in the model for an object implemented outside the library.
#ifndef PRAXEN_DESCRIBE_FOREIGN_OBJECT_H_
#define PRAXEN_DESCRIBE_FOREIGN_OBJECT_H_

#include "praxen/describe/object.h"

namespace praxen::describe {

/// A second base of the adapters that hold a client's implementation of a kind.
class ForeignObject {
 public:
  virtual ~ForeignObject() = default;

  /// The client's kind interface and its IDispatch, which are handed out in place of the adapter.
  virtual Interface* kindOfClient() const noexcept = 0;
  virtual Interface* dispatchOfClient() const noexcept = 0;
};

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_FOREIGN_OBJECT_H_
