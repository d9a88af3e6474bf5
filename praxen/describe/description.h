// ClassDescription: all that the engines know of a class, and the base that ties a class to it.
#ifndef PRAXEN_DESCRIBE_DESCRIPTION_H_
#define PRAXEN_DESCRIBE_DESCRIPTION_H_

#include <span>
#include <string_view>
#include <vector>

#include "praxen/core/uuid.h"
#include "praxen/describe/layout.h"
#include "praxen/describe/member.h"
#include "praxen/describe/object.h"

namespace praxen::describe {

/// The identifier of a name, given in parts, in the namespace of all identifiers of the library.
template <class... Parts>
constexpr Uuid NamedIdentifier(const Parts&... name) {
  constexpr Uuid kNamespace = {
      0x5c3ad0a4, 0x6a0f, 0x4d0e, {0x9b, 0x6e, 0x2f, 0x81, 0xd7, 0x43, 0x1e, 0x58}};
  return NameUuid(kNamespace, name...);
}

/// What a class states of itself.
struct ClassFacts {
  std::string_view name;
  std::string_view help;
  Uuid classId, interfaceId;
  Members members;
  /// Null for the kind interfaces that clients cannot create.
  Ref<Object> (*create)() = nullptr;
  /// Null for classes that are no XML elements.
  const Layout& (*layout)() = nullptr;
  /// The kind that the class implements besides its own interface.
  const ClassDescription* kind = nullptr;
  bool isKind = false;
  /// Whether its objects write themselves as documents.
  bool isSerializable = false;
  /// The first functions of the table: those of IUnknown and IDispatch.
  std::span<const void* const> head;
  /// The same for a kind's own interface, which is not the object's first.
  std::span<const void* const> kindHead;
  /// Of a kind: holds a foreign object that implements it; null for one that does not.
  Ref<Object> (*adapt)(Interface* foreign) = nullptr;
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

/// One node for each published class, linked as the library is loaded.
class Publication {
 public:
  explicit Publication(const ClassDescription& (*describe)()) noexcept;

  /// The publications in no particular order.
  static const Publication* first() noexcept;
  const Publication* next() const noexcept { return next_; }
  const ClassDescription& description() const { return describe_(); }

 private:
  const ClassDescription& (*const describe_)();
  const Publication* const next_;
};

template <class Class>
struct Published {
  static const ClassDescription& Description();

 private:
  static const Publication publication;
};

/// Says in the help of members which of them writing requires: those of the attributes that must
/// not be empty, and of the children that must be there.
void StateRequired(Members& members, const Layout& layout);

/// Ties `Class` to its description.
template <class Class, class Base = Object>
class Described : public Base {
 protected:
  /// The class's name for itself.
  using T = Class;

  Described() : Base(Describe<Class>()) {}
  explicit Described(Object::Counting counting) : Base(Describe<Class>(), counting) {}
};

}  // namespace praxen::describe

namespace praxen {

/// The base of the classes that write themselves as a document.
class SerializableObject : public Object {
 public:
  /// The object as a complete XML document; raises what writing raises and then returns nothing.
  Text Serialize();

 protected:
  using Object::Object;
};

}  // namespace praxen

namespace praxen::describe {

/// Ties a class that writes itself as a document to its description.
template <class Class>
using Serializable = Described<Class, SerializableObject>;

inline Member serialize() {
  return method<&SerializableObject::Serialize>("Returns the object as a complete XML document.");
}

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_DESCRIPTION_H_
