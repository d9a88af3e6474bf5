// ObjectPool, the objects that a run has made, and those that its calls return.
#ifndef PRAXEN_FUZZ_OBJECT_POOL_H_
#define PRAXEN_FUZZ_OBJECT_POOL_H_

#include <vector>

#include "fuzz/input.h"
#include "praxen/automation/automation.h"
#include "praxen/describe/description.h"

namespace praxen::detail {

/// The object as automation clients see it; not counted.
IDispatch* AsDispatch(Object& object);

/// A growing set of objects, which may refer to each other in cycles until it is destroyed.
class ObjectPool {
 public:
  /// Begins with a few objects of classes that the input chooses.
  explicit ObjectPool(FuzzInput& input);
  ObjectPool(const ObjectPool&) = delete;
  ObjectPool& operator=(const ObjectPool&) = delete;
  ~ObjectPool();

  const std::vector<Ref<Object>>& objects() const { return objects_; }
  /// Null only when there is no object.
  Object* Choose(FuzzInput& input) const;
  /// An object of the class, or of the kind, which is made when there is none; null when none can
  /// be made.
  Object* Choose(FuzzInput& input, const ClassDescription& wanted);
  /// Adds the object of the library that a call has returned, if it did.
  void Keep(const VARIANT& result);

 private:
  void Create(const ClassDescription& description);

  std::vector<Ref<Object>> objects_;
};

/// Whether the object can be written in little time: shared objects are written wherever they
/// stand, so a few of them can make a document of any size.
bool IsSmall(Object& object);

}  // namespace praxen::detail

#endif  // PRAXEN_FUZZ_OBJECT_POOL_H_
