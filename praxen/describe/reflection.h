// Reflection: what generic code asks of any object – its values, the objects it holds, its
// elements – answered from the descriptions.
#ifndef PRAXEN_DESCRIBE_REFLECTION_H_
#define PRAXEN_DESCRIBE_REFLECTION_H_

#include <concepts>
#include <cstdint>
#include <map>
#include <span>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "praxen/core/enumerations.h"
#include "praxen/describe/description.h"
#include "praxen/describe/layout.h"
#include "praxen/describe/member.h"
#include "praxen/describe/object.h"
#include "praxen/describe/value_type.h"

namespace praxen::describe {

// Types.

/// Calls the visitor with `std::type_identity` of the static type behind a type: `Text`, `bool`,
/// `int32_t`, `double`, `EnumerationDescription` for any enumeration, `Object` for any class,
/// `AnyValue`, `Enumerator`, and `void` for none.
template <class Visitor>
decltype(auto) VisitType(const ValueType& type, Visitor&& visitor) {
  switch (type.kind) {
    case ValueKind::Text:
      return visitor(std::type_identity<Text>());
    case ValueKind::Boolean:
      return visitor(std::type_identity<bool>());
    case ValueKind::Integer:
      return visitor(std::type_identity<int32_t>());
    case ValueKind::Double:
      return visitor(std::type_identity<double>());
    case ValueKind::Enumeration:
      return visitor(std::type_identity<EnumerationDescription>());
    case ValueKind::Object:
      return visitor(std::type_identity<Object>());
    case ValueKind::Any:
      return visitor(std::type_identity<AnyValue>());
    case ValueKind::Enumerator:
      return visitor(std::type_identity<Enumerator>());
    case ValueKind::None:
      break;
  }
  return visitor(std::type_identity<void>());
}

/// A visitor made of one function for each type.
template <class... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

inline bool IsObject(const ValueType& type) { return type.kind == ValueKind::Object; }

// Values: texts, booleans, numbers and enumerations.

/// An enumeration as a visitor sees it: the number, which may lie outside of the enumeration. Where
/// a visitor has no function for it, it is visited as that number.
template <class Number>
struct EnumerationValue {
  Number& number;
  const EnumerationDescription& description;

  operator Number&() const noexcept { return number; }  // NOLINT
};

}  // namespace praxen::describe

namespace praxen::detail {

/// How the values of a type are stored; only a type whose objects are values has `type`.
template <class T>
struct Stored {};
template <class T>
requires std::same_as<T, Text> || std::same_as<T, bool> || std::same_as<T, int32_t> ||
    std::same_as<T, double>
struct Stored<T> {
  using type = T;
};
template <>
struct Stored<EnumerationDescription> {
  using type = int32_t;
};

template <class T>
concept ValueTag = requires {
  typename Stored<T>::type;
};

/// Shows a visitor a value of the type with the tag `Tag`.
template <class Tag, class Value, class Visitor>
decltype(auto) Show(const ValueType& type, Value& value, Visitor& visitor) {
  if constexpr (std::is_same_v<Tag, EnumerationDescription>) {
    return visitor(EnumerationValue<Value>{value, *type.enumeration});
  } else {
    return visitor(value);
  }
}

}  // namespace praxen::detail

namespace praxen::describe {

/// Whether a type is one of those that `VisitValue` takes.
inline bool IsValue(const ValueType& type) {
  return VisitType(type, []<class T>(std::type_identity<T>) { return detail::ValueTag<T>; });
}

/// Calls the visitor with the value at an address as what it is: `Text&`, `bool&`, `int32_t&`,
/// `double&` or an `EnumerationValue`, constant where the address is. Raises `TypeMismatch` when
/// the type is that of no value. Returns what the visitor returns, which is the same for all.
template <class Address, class Visitor>
requires std::is_void_v<Address>
decltype(auto) VisitValue(const ValueType& type, Address* value, Visitor&& visitor) {
  using IsConst = std::is_const<Address>;
  using TextValue = std::conditional_t<IsConst::value, const Text, Text>;
  using Result = std::invoke_result_t<Visitor&, TextValue&>;
  return VisitType(type, [&]<class T>(std::type_identity<T>) -> Result {
    if constexpr (detail::ValueTag<T>) {
      using Plain = typename detail::Stored<T>::type;
      using Held = std::conditional_t<IsConst::value, const Plain, Plain>;
      return detail::Show<T>(type, *static_cast<Held*>(value), visitor);
    } else {
      ThrowTypeMismatch();
    }
  });
}

// Properties.

/// Whether a member is a property that an object keeps, stored or behind a pair of functions; what
/// is computed only is none.
inline bool IsKept(const Member& member) {
  return member.storage != nullptr || member.readValue != nullptr;
}
/// The same of a value.
inline bool IsKeptValue(const Member& member) { return IsKept(member) && IsValue(member.type); }
/// The same of an object or a list.
inline bool IsKeptObject(const Member& member) {
  return member.storage != nullptr && IsObject(member.type);
}

/// Calls the visitor with the value of a property that is kept, as `VisitValue` does; it is not to
/// be changed. The value may be a copy that ends with the call.
template <class Visitor>
void VisitProperty(Object& object, const Member& member, Visitor&& visitor) {
  if (member.storage != nullptr) {
    const void* const value = member.storage(object);
    return VisitValue(member.type, value, visitor);
  }
  VisitType(member.type, [&]<class T>(std::type_identity<T>) {
    if constexpr (detail::ValueTag<T>) {
      typename detail::Stored<T>::type value{};
      member.readValue(object, &value);
      detail::Show<T>(member.type, std::as_const(value), visitor);
    } else {
      ThrowTypeMismatch();
    }
  });
}

/// The same with a value that the visitor may change; raises what setting the property raises.
template <class Visitor>
void ChangeProperty(Object& object, const Member& member, Visitor&& visitor) {
  if (member.storage != nullptr) return VisitValue(member.type, member.storage(object), visitor);
  VisitType(member.type, [&]<class T>(std::type_identity<T>) {
    if constexpr (detail::ValueTag<T>) {
      typename detail::Stored<T>::type value{};
      member.readValue(object, &value);
      detail::Show<T>(member.type, value, visitor);
      member.writeValue(object, &value);
    } else {
      ThrowTypeMismatch();
    }
  });
}

/// A copy of a property's value; enumerations are their numbers.
using Value = std::variant<Text, bool, int32_t, double>;

/// The value of a property that is kept.
Value ReadProperty(Object& object, const Member& member);

// The objects that an object holds.

/// The list or object behind a property or in a child; null where there is none, and where it is
/// none of an object.
Object* Held(Object& object, const Member& member);
inline Object* Held(Object& object, const Child& child) {
  return child.type.held == nullptr ? nullptr : child.type.held(ValueOf(child, object));
}

/// The same, created where there is none; only of a property or child of an object. Raises
/// `TypeMismatch` where none can be created.
Object& HeldOrCreated(Object& object, const Member& member);
Object& HeldOrCreated(Object& object, const Child& child);

/// Puts an object, or none, behind a property of an object; raises `TypeMismatch` when it is of
/// another class.
void SetHeld(Object& object, const Member& member, Object* held);

/// The elements of a list; none of an object that is no list.
std::span<const Ref<Object>> ElementsOf(const Object& object);

// Classes.

/// The attributes of a class's element; none for a class that is no element or writes itself.
std::span<const Attribute> AttributesOf(const ClassDescription& description);
/// The children of a class's element; none for a class that is no element.
std::span<const Child> ChildrenOf(const ClassDescription& description);

/// The attribute or child that holds a member of the class; null where none does.
const Attribute* AttributeOf(const ClassDescription& description, const Member& member);
const Child* ChildOf(const ClassDescription& description, const Member& member);

/// A new object of each class, made once, for what holds values to be compared with its own.
class NewObjects {
 public:
  Object& Like(const Object& object);

 private:
  std::map<const ClassDescription*, Ref<Object>> objects_;
};

/// Whether objects of the class write themselves as documents, whose root is the element of the
/// class's layout. `DocumentClasses` names those that the factory also reads.
bool IsDocument(const ClassDescription& description);

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_REFLECTION_H_
