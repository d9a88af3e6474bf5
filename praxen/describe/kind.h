// The base of the kind interfaces, which classes implement besides their own interface.
#ifndef PRAXEN_DESCRIBE_KIND_H_
#define PRAXEN_DESCRIBE_KIND_H_

#include "praxen/describe/description.h"
#include "praxen/describe/slots.h"

namespace praxen::describe {

/// Gives a kind its second interface. Objects of a kind itself, and of classes that clients derive
/// from it, are not counted.
template <class Class, class Base = Object>
class KindBase : public Base, public KindInterface {
 public:
  using Kind = Class;

  Interface* kindInterface() noexcept final { return static_cast<KindInterface*>(this); }

 protected:
  KindBase() : KindBase(Describe<Class>(), Object::Counting::No) {}
  explicit KindBase(const ClassDescription& description,
                    Object::Counting counting = Object::Counting::Yes)
      : Base(description, counting) {
    KindInterface::table = Describe<Class>().kindTable();
  }
};

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_KIND_H_
