// Enumerator, which walks a list for the for-each loops of automation clients.
#ifndef PRAXEN_DESCRIBE_ENUMERATOR_H_
#define PRAXEN_DESCRIBE_ENUMERATOR_H_

#include <cstddef>
#include <vector>

#include "praxen/describe/object.h"
#include "praxen/describe/value_type.h"

namespace praxen {

/// Visits the elements that a list held when the enumerator was made, in list order, and keeps the
/// list alive. It is not among the counted objects. To automation clients it is an IEnumVARIANT.
class Enumerator final : public Object {
 public:
  explicit Enumerator(const Ref<Object>& list);
  Enumerator(const Enumerator& other);

  /// The next element; an empty reference, and `atEnd` true, after the last.
  Ref<Object> Next();
  bool atEnd() const noexcept { return next_ == elements_.size(); }
  /// Passes over `count` elements; false when there are fewer.
  bool Skip(size_t count);
  void Reset() noexcept { next_ = 0; }
  /// An enumerator over the same elements that stands at the same place.
  Ref<Enumerator> Clone() const;

 private:
  Ref<Object> list_;
  std::vector<Ref<Object>> elements_;
  size_t next_ = 0;
};

}  // namespace praxen

namespace praxen::describe {

template <>
const ClassDescription& Describe<Enumerator>();

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_ENUMERATOR_H_
