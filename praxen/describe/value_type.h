// The types of properties, arguments and results, as descriptions know them.
#ifndef PRAXEN_DESCRIBE_VALUE_TYPE_H_
#define PRAXEN_DESCRIBE_VALUE_TYPE_H_

#include <cstdint>
#include <type_traits>

#include "praxen/core/enumerations.h"
#include "praxen/core/text.h"
#include "praxen/describe/object.h"

struct tagVARIANT;

namespace praxen {

class Enumerator;

/// Any automation value where a text is wanted: numbers and booleans become their texts.
class AnyValue {
 public:
  AnyValue() = default;
  AnyValue(const Text& text) : text_(text) {}  // NOLINT
  /// Of whatever makes a `Text`; without it a literal would be taken for a boolean.
  template <class T>
  requires(std::is_convertible_v<const T&, Text> && !std::is_same_v<T, AnyValue>)  // NOLINTNEXTLINE
      AnyValue(const T& text)
      : text_(text) {}
  /// No leading blank, "." as decimal point.
  AnyValue(int32_t number);  // NOLINT
  AnyValue(double number);   // NOLINT
  /// "True" or "False".
  AnyValue(bool value);  // NOLINT

  operator const Text&() const noexcept { return text_; }  // NOLINT

 private:
  Text text_;
};

}  // namespace praxen

namespace praxen::describe {

struct ClassDescription;

/// A published class; instantiated once per class, in the source file of its family (define.h).
template <class Class>
struct Published;

/// The description of a class.
template <class Class>
const ClassDescription& Describe() {
  return Published<Class>::Description();
}

enum class ValueKind : uint8_t {
  None,
  Text,
  Boolean,
  Integer,
  Double,
  Enumeration,
  Object,
  Any,
  Enumerator
};

/// A type with its conversions to and from automation values. The values are of the C++ type the
/// description was made for: `Text`, `bool`, `int32_t`, `double`, an enumeration or a `Ref`.
struct ValueType {
  ValueKind kind = ValueKind::None;
  const EnumerationDescription* enumeration = nullptr;
  const ClassDescription& (*object)() = nullptr;
  /// Stores a value in an empty variant.
  void (*toVariant)(const void* value, tagVARIANT& variant) = nullptr;
  /// Converts as the platform does; throws `ArgumentError`, the value then unchanged.
  void (*fromVariant)(void* value, const tagVARIANT& variant) = nullptr;
  /// Of a reference to an object: what it refers to, or null.
  Object* (*held)(const void* reference) = nullptr;
  /// Lets it refer to an object, or to none; raises `TypeMismatch` for one of another class.
  void (*hold)(void* reference, Object* object) = nullptr;
};

template <class T>
concept ObjectClass = std::derived_from<T, Object>;

/// A class that others implement as a second interface, such as `ICodeBlock`.
template <class T>
concept KindClass = ObjectClass<T> && std::is_same_v<typename T::Kind, T>;

/// A value that cannot be converted as an argument must be.
struct ArgumentError {
  int32_t code;
  const tagVARIANT* argument;
};

template <class T>
struct RefTarget;
template <class T>
struct RefTarget<Ref<T>> {
  using type = T;
};

template <class T>
concept ReferenceType = requires {
  typename RefTarget<T>::type;
};

}  // namespace praxen::describe

namespace praxen::detail {

void TextToVariant(const void* value, tagVARIANT& variant);
void TextFromVariant(void* value, const tagVARIANT& variant);
void BooleanToVariant(const void* value, tagVARIANT& variant);
void BooleanFromVariant(void* value, const tagVARIANT& variant);
void IntegerToVariant(const void* value, tagVARIANT& variant);
void IntegerFromVariant(void* value, const tagVARIANT& variant);
void DoubleToVariant(const void* value, tagVARIANT& variant);
void DoubleFromVariant(void* value, const tagVARIANT& variant);
void AnyFromVariant(void* value, const tagVARIANT& variant);

/// The object of ours behind a variant, null for an empty reference. An object that is not ours is
/// held through `adapt`, when that is given. Throws `ArgumentError` for anything else.
Ref<Object> ObjectFromVariant(const tagVARIANT& variant, Ref<Object> (*adapt)(Interface*));
void ObjectToVariant(Object* object, tagVARIANT& variant);
/// An enumerator has no members, so it is handed out as an object that cannot be called.
void EnumeratorToVariant(Object* enumerator, tagVARIANT& variant);
[[noreturn]] void ThrowWrongClass(const tagVARIANT& variant);

}  // namespace praxen::detail

namespace praxen::describe {

/// Holds a foreign implementation of a kind interface; null when it does not implement it.
template <KindClass Kind>
Ref<Object> AdaptForeign(Interface* foreign) {
  return Kind::Adapt(foreign);
}

template <ObjectClass T>
constexpr Ref<Object> (*kAdapt)(Interface*) = nullptr;
template <KindClass T>
constexpr Ref<Object> (*kAdapt<T>)(Interface*) = &AdaptForeign<T>;  // NOLINT

/// The object as a `T`; raises `TypeMismatch` when it is of another class.
template <ObjectClass T>
Ref<T> RequireClass(const Ref<Object>& object) {
  T* const cast = dynamic_cast<T*>(object.get());
  if (cast == nullptr && object) ThrowTypeMismatch();
  return cast;
}

template <class T>
constexpr ValueType MakeValueType() {
  if constexpr (std::is_void_v<T>) {
    return {};
  } else if constexpr (std::is_same_v<T, Text>) {
    return {ValueKind::Text, nullptr, nullptr, TextToVariant, TextFromVariant};
  } else if constexpr (std::is_same_v<T, bool>) {
    return {ValueKind::Boolean, nullptr, nullptr, BooleanToVariant, BooleanFromVariant};
  } else if constexpr (std::is_same_v<T, int32_t>) {
    return {ValueKind::Integer, nullptr, nullptr, IntegerToVariant, IntegerFromVariant};
  } else if constexpr (std::is_same_v<T, double>) {
    return {ValueKind::Double, nullptr, nullptr, DoubleToVariant, DoubleFromVariant};
  } else if constexpr (std::is_enum_v<T>) {
    return {ValueKind::Enumeration, nullptr, nullptr, IntegerToVariant, IntegerFromVariant};
  } else if constexpr (std::is_same_v<T, AnyValue>) {
    return {ValueKind::Any, nullptr, nullptr, nullptr, AnyFromVariant};
  } else {
    using Target = typename RefTarget<T>::type;
    constexpr bool kIsEnumerator = std::is_same_v<Target, Enumerator>;
    return {
        kIsEnumerator ? ValueKind::Enumerator : ValueKind::Object,
        nullptr,
        &Describe<Target>,
        [](const void* value, tagVARIANT& variant) {
          constexpr auto store = kIsEnumerator ? EnumeratorToVariant : ObjectToVariant;
          store(static_cast<const T*>(value)->get(), variant);
        },
        [](void* value, const tagVARIANT& variant) {
          const Ref<Object> object = ObjectFromVariant(variant, kAdapt<Target>);
          const Ref<Target> target = Cast<Target>(object);
          if (object && !target) ThrowWrongClass(variant);
          *static_cast<T*>(value) = target;
        },
        [](const void* reference) -> Object* { return static_cast<const T*>(reference)->get(); },
        [](void* reference, Object* object) {
          *static_cast<T*>(reference) = RequireClass<Target>(object);
        }};
  }
}

/// The description of the C++ type `T`.
template <class T>
ValueType ValueTypeOf() {
  ValueType type = MakeValueType<T>();
  if constexpr (std::is_enum_v<T>) type.enumeration = &DescribeEnumeration<T>();
  return type;
}

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_VALUE_TYPE_H_
