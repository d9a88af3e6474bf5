// ClassDescription: all that the engines know of a class, and the base that ties a class to it.
#ifndef PRAXEN_DESCRIBE_DESCRIPTION_H_
#define PRAXEN_DESCRIBE_DESCRIPTION_H_

#include <span>
#include <string_view>
#include <vector>

#include "praxen/core/object.h"
#include "praxen/describe/layout.h"
#include "praxen/describe/member.h"

namespace praxen {

/// What a class states of itself.
struct ClassFacts {
  std::string_view name;
  std::string_view help;
  Members members;
  /// Null for the kind interfaces that clients cannot create.
  Ref<Object> (*create)() = nullptr;
  /// Null for classes that are no XML elements.
  const Layout& (*layout)() = nullptr;
  /// The kind that the class implements besides its own interface.
  const ClassDescription* kind = nullptr;
  bool isKind = false;
  /// The first functions of the table: those of IUnknown and IDispatch.
  std::span<const void* const> head;
  /// The same for a kind's own interface, which is not the object's first.
  std::span<const void* const> kindHead;
};

/// A class with its interface tables.
struct ClassDescription : ClassFacts {
  explicit ClassDescription(ClassFacts facts);
  ClassDescription(const ClassDescription&) = delete;
  ClassDescription& operator=(const ClassDescription&) = delete;

  /// The table of an object's default interface. A kind used on its own publishes its members
  /// through its kind interface only.
  const void* const* interfaceTable() const noexcept { return table_.data() + 1; }
  /// The table of the interface `KindInterface` of a kind.
  const void* const* kindTable() const noexcept { return kind_table_.data() + 1; }

  /// The member of that name in any letter case, also among those of the kind; null when absent.
  const Member* FindMember(std::u16string_view name) const noexcept;
  const Member* FindMember(int32_t id) const noexcept;

 private:
  std::vector<const void*> table_;
  std::vector<const void*> kind_table_;
};

/// Every published class in the order of its name, the three kind interfaces that cannot be created
/// included.
std::span<const ClassDescription& (*const)()> AllClasses() noexcept;

/// The published class of that name in any letter case; null when there is none.
const ClassDescription* FindClass(std::u16string_view name) noexcept;

/// Ties `Class` to its description.
template <class Class, class Base = Object>
class Described : public Base {
 protected:
  Described() : Base(Describe<Class>()) {}
  explicit Described(Object::Counting counting) : Base(Describe<Class>(), counting) {}
};

/// The base of the classes that write themselves as a document.
class SerializableObject : public Object {
 public:
  /// The object as a complete XML document; raises what writing raises and then returns nothing.
  Text Serialize();

 protected:
  using Object::Object;
};

template <class Class>
using Serializable = Described<Class, SerializableObject>;

inline Member serialize() {
  return method<&SerializableObject::Serialize>("Returns the object as a complete XML document.");
}

}  // namespace praxen

#endif  // PRAXEN_DESCRIBE_DESCRIPTION_H_
