// The functions of the interface tables, instantiated for each member from the pointer to it.
#ifndef PRAXEN_DESCRIBE_SLOTS_H_
#define PRAXEN_DESCRIBE_SLOTS_H_

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>
#include <vector>

#include "praxen/automation/border.h"
#include "praxen/describe/object.h"
#include "praxen/describe/value_type.h"

namespace praxen::detail {

/// The second interface of an object that implements a kind.
struct KindInterface : Interface {};

}  // namespace praxen::detail

/// How values cross an interface table. The types are those of automation on 64-bit systems,
/// spelled without its headers: HRESULT, BSTR, VARIANT_BOOL, LONG, double, an interface pointer and
/// a VARIANT.
namespace praxen::detail::abi {

using Result = int32_t;
using String = char16_t*;
using Boolean = int16_t;
struct Variant {
  alignas(8) std::byte content[24];
};

/// What a caller outside the library is told of an exception.
struct Failure {
  Result code;
  Text source, description;
};

/// Turns the exception in flight into the thread's error information.
Failure ReportFailure() noexcept;

/// Runs an operation for a caller outside the library.
template <class Operation>
Result Guard(Operation operation) noexcept {
  const auto work = [&] {
    operation();
    return Result{0};
  };
  return AtBorder(work, [] { return ReportFailure().code; });
}

template <class T>
struct Type {
  using In = int32_t;
};
template <>
struct Type<Text> {
  using In = String;
};
template <>
struct Type<bool> {
  using In = Boolean;
};
template <>
struct Type<double> {
  using In = double;
};
template <>
struct Type<AnyValue> {
  using In = Variant;
};
template <class T>
struct Type<Ref<T>> {
  using In = Interface*;
};

template <class T, bool ByReference = false>
using In = std::conditional_t<ByReference, typename Type<T>::In*, typename Type<T>::In>;

Text ToText(const char16_t* string);
AnyValue ToAny(const Variant& variant);
Ref<Object> ToObject(Interface* object, Ref<Object> (*adapt)(Interface*));

/// The C++ value of an argument.
template <class T>
T FromIn(typename Type<T>::In value) {
  if constexpr (std::is_same_v<T, Text>) {
    return ToText(value);
  } else if constexpr (std::is_same_v<T, bool>) {
    return value != 0;
  } else if constexpr (std::is_same_v<T, AnyValue>) {
    return ToAny(value);
  } else if constexpr (ReferenceType<T>) {
    using Target = typename RefTarget<T>::type;
    return RequireClass<Target>(ToObject(value, kAdapt<Target>));
  } else {
    return static_cast<T>(value);
  }
}

[[noreturn]] void ThrowNullPointer();

template <class T, bool ByReference>
T FromArgument(In<T, ByReference> value) {
  if constexpr (ByReference) {
    if (value == nullptr) ThrowNullPointer();
    return FromIn<T>(*value);
  } else {
    return FromIn<T>(value);
  }
}

/// Hands a result to the caller; raises the error of a null pointer before the result is made.
template <class Out>
void RequireOut(Out* out) {
  if (out == nullptr) ThrowNullPointer();
  *out = Out{};
}
void Store(const Text& value, String* out);
void Store(bool value, Boolean* out);
void Store(int32_t value, int32_t* out);
void Store(double value, double* out);
/// The default interface of the object, or its kind interface, counted for the caller.
void StoreObject(Object* object, Interface** out);
void StoreKind(Object* object, const KindInterface* kind, Interface** out);
template <class T>
void Store(const Ref<T>& value, Interface** out) {
  if constexpr (KindClass<T>) {
    StoreKind(value.get(), value.get(), out);
  } else {
    StoreObject(value.get(), out);
  }
}

}  // namespace praxen::detail::abi

namespace praxen::describe {

/// Gives the classes of the library access to the storage of read-only properties.
struct StorageAccess {
  template <class T>
  static T& Of(T& value) {
    return value;
  }
  template <class T>
  static T& Of(ReadOnly<T>& value) {
    return value.value_;
  }
};

/// The object behind an interface pointer of a table that was made for `Class`.
template <class Class>
Class& Self(Interface* self) {
  if constexpr (KindClass<Class>) {
    return static_cast<Class&>(*static_cast<KindInterface*>(self));
  } else {
    return static_cast<Class&>(static_cast<Object&>(*self));
  }
}

template <class Pointer>
struct MemberPointer;
template <class C, class T>
struct MemberPointer<T C::*> {
  using Class = C;
  using Stored = T;
  using Value = std::remove_reference_t<decltype(StorageAccess::Of(std::declval<T&>()))>;
  static constexpr bool kReadOnly = !std::is_same_v<Stored, Value>;
};

/// The table functions of a property that is a data member.
template <auto Pointer>
struct PropertySlots {
  using Traits = MemberPointer<decltype(Pointer)>;
  using Class = typename Traits::Class;
  using Value = typename Traits::Value;

  static Value& Storage(Object& object) {
    return StorageAccess::Of(static_cast<Class&>(object).*Pointer);
  }
  static void* Address(Object& object) { return &Storage(object); }
  static abi::Result Get(Interface* self, abi::In<Value>* out) noexcept {
    return abi::Guard([&] {
      abi::RequireOut(out);
      abi::Store(Storage(Self<Class>(self)), out);
    });
  }
  static abi::Result Put(Interface* self, abi::In<Value> value) noexcept {
    return abi::Guard([&] { Storage(Self<Class>(self)) = abi::FromIn<Value>(value); });
  }
};

/// A member function as an operation: a static function `Run` that takes the object first.
template <auto Pointer, class Signature = decltype(Pointer)>
struct MemberOperation;
template <auto Pointer, class C, class R, class... A>
struct MemberOperation<Pointer, R (C::*)(A...)> {
  static R Run(C& self, A... arguments) { return (self.*Pointer)(arguments...); }
};
template <auto Pointer, class C, class R, class... A>
struct MemberOperation<Pointer, R (C::*)(A...) const> {
  static R Run(C& self, A... arguments) { return (self.*Pointer)(arguments...); }
};

/// A callable constant of the class `C`, such as an operation of the factory.
template <class C, const auto& Callable,
          class Signature = decltype(&std::remove_cvref_t<decltype(Callable)>::operator())>
struct ConstantOperation;
template <class C, const auto& Callable, class Type, class R, class... A>
struct ConstantOperation<C, Callable, R (Type::*)(A...) const> {
  static R Run(C&, A... arguments) { return Callable(arguments...); }
};

/// The table function and the late-bound call of an operation. Bit n of `ByReference` tells that
/// argument n is passed by reference; it is left unchanged.
template <class Operation, uint32_t ByReference, class Signature = decltype(&Operation::Run)>
struct OperationSlots;
template <class Operation, uint32_t ByReference, class C, class R, class... A>
struct OperationSlots<Operation, ByReference, R (*)(C&, A...)> {
  using Class = C;
  using Result = R;
  static constexpr size_t kArguments = sizeof...(A);

  static constexpr bool IsByReference(size_t index) { return (ByReference >> index & 1) != 0; }

  template <class T>
  static T FromVariant(const tagVARIANT& variant) {
    T value{};
    MakeValueType<T>().fromVariant(&value, variant);
    return value;
  }

  template <class Indices, class... T>
  struct With;
  template <size_t... Index, class... T>
  struct With<std::index_sequence<Index...>, T...> {
    static abi::Result CallVoid(Interface* self,
                                abi::In<T, IsByReference(Index)>... values) noexcept {
      return abi::Guard([&] {
        Operation::Run(Self<C>(self), abi::FromArgument<T, IsByReference(Index)>(values)...);
      });
    }
    template <class Value>
    static abi::Result Call(Interface* self, abi::In<T, IsByReference(Index)>... values,
                            abi::In<Value>* out) noexcept {
      return abi::Guard([&] {
        abi::RequireOut(out);
        abi::Store(
            Operation::Run(Self<C>(self), abi::FromArgument<T, IsByReference(Index)>(values)...),
            out);
      });
    }
    static const void* Function() {
      if constexpr (std::is_void_v<R>) {
        return reinterpret_cast<const void*>(&CallVoid);
      } else {
        return reinterpret_cast<const void*>(&Call<R>);
      }
    }
    static void Invoke(Object& object, [[maybe_unused]] const tagVARIANT* const* arguments,
                       [[maybe_unused]] tagVARIANT& variant) {
      C& self = static_cast<C&>(object);
      if constexpr (std::is_void_v<R>) {
        Operation::Run(self, FromVariant<T>(*arguments[Index])...);
      } else {
        const R result = Operation::Run(self, FromVariant<T>(*arguments[Index])...);
        MakeValueType<R>().toVariant(&result, variant);
      }
    }
    static std::vector<ValueType> Types() { return {ValueTypeOf<T>()...}; }
  };
  using Slots = With<std::index_sequence_for<A...>, std::remove_cvref_t<A>...>;
};

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_SLOTS_H_
