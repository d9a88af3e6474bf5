// The published members of a class: properties and methods in the order of its interface.
#ifndef PRAXEN_DESCRIBE_MEMBER_H_
#define PRAXEN_DESCRIBE_MEMBER_H_

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "praxen/core/entity_name.h"
#include "praxen/describe/object.h"
#include "praxen/describe/slots.h"
#include "praxen/describe/value_type.h"

namespace praxen::describe {

/// Identifiers that automation gives a meaning of their own.
inline constexpr int32_t kDefaultMemberId = 0;
inline constexpr int32_t kEnumeratorId = -4;
/// The identifiers of a kind interface's members begin here, so that they differ from those of the
/// classes that implement it.
inline constexpr int32_t kFirstKindMemberId = 0x1000;

struct MemberParameter {
  std::string_view name;
  ValueType type;
  bool byReference = false;
};

/// Calls with arguments in the order of the parameters; the result goes into an empty variant.
using InvokeFunction = void (*)(Object& object, const tagVARIANT* const* arguments,
                                tagVARIANT& result);

/// One published member: a property with its one or two functions, or a method.
struct Member {
  std::string_view name;
  /// A sentence.
  std::string help;
  /// The dispatch identifier; given by the place in the list unless the member has a fixed one.
  int32_t id = 0;
  bool isMethod = false;
  /// In the interface table the function that sets stands before the one that gets.
  bool putFirst = false;
  bool hasFixedId = false;
  /// Of the property, or of the result.
  ValueType type;
  std::vector<MemberParameter> parameters;
  /// The table functions; `put` is null for methods and for properties that can only be read.
  const void* get = nullptr;
  const void* put = nullptr;
  /// The value of a property that is a data member; null for the others, which are invoked.
  void* (*storage)(Object& object) = nullptr;
  InvokeFunction invokeGet = nullptr;
  InvokeFunction invokePut = nullptr;
  /// Of a property behind a pair of functions: copies its value from and into an object. The values
  /// are of the property's type.
  void (*readValue)(Object& object, void* value) = nullptr;
  void (*writeValue)(Object& object, const void* value) = nullptr;
};

/// Members in interface order.
class Members : public std::vector<Member> {
 public:
  using std::vector<Member>::vector;

  Members& operator+=(const Members& more) {
    insert(end(), more.begin(), more.end());
    return *this;
  }
  friend Members operator+(Members left, const Members& right) { return left += right; }
};

/// A property that is a data member. One of type `ReadOnly` is published without a setter.
template <auto Pointer>
Member property(std::string_view help = {}) {
  using Slots = PropertySlots<Pointer>;
  Member member;
  member.name = EntityName<Pointer>();
  member.help = help;
  member.type = ValueTypeOf<typename Slots::Value>();
  member.get = reinterpret_cast<const void*>(&Slots::Get);
  if constexpr (!Slots::Traits::kReadOnly) {
    member.put = reinterpret_cast<const void*>(&Slots::Put);
  }
  member.storage = &Slots::Address;
  return member;
}

/// The property with its setter before its getter in the interface.
inline Member PutFirst(Member member) {
  member.putFirst = true;
  return member;
}

/// A property whose setter stands before its getter in the interface.
template <auto Pointer>
Member propertyPutFirst(std::string_view help = {}) {
  return PutFirst(property<Pointer>(help));
}

}  // namespace praxen::describe

namespace praxen::detail {

template <class Operation, uint32_t ByReference>
describe::Member MakeMember(std::string_view name, std::string_view help,
                            const std::vector<std::string_view>& parameters) {
  using Slots = OperationSlots<Operation, ByReference>;
  Member member;
  member.name = name;
  member.help = help;
  member.type = ValueTypeOf<typename Slots::Result>();
  member.get = Slots::Slots::Function();
  member.invokeGet = &Slots::Slots::Invoke;
  const std::vector<ValueType> types = Slots::Slots::Types();
  for (size_t i = 0; i < types.size(); ++i) {
    member.parameters.push_back({parameters.at(i), types[i], Slots::IsByReference(i)});
  }
  return member;
}

}  // namespace praxen::detail

namespace praxen::describe {

/// A method; `parameters` are the published names.
template <auto Pointer, uint32_t ByReference = 0>
Member method(std::string_view help, const std::vector<std::string_view>& parameters = {}) {
  Member member =
      MakeMember<MemberOperation<Pointer>, ByReference>(EntityName<Pointer>(), help, parameters);
  member.isMethod = true;
  return member;
}

/// A property that is computed and can only be read; it may have parameters.
template <auto Pointer>
Member computed(std::string_view help, const std::vector<std::string_view>& parameters = {}) {
  return MakeMember<MemberOperation<Pointer>, 0>(EntityName<Pointer>(), help, parameters);
}

/// A property behind a pair of functions.
template <auto Getter, auto Setter>
Member accessors(std::string_view name, std::string_view help) {
  using Getting = OperationSlots<MemberOperation<Getter>, 0>;
  using Setting = OperationSlots<MemberOperation<Setter>, 0>;
  using Class = typename Getting::Class;
  using Value = typename Getting::Result;
  Member member = MakeMember<MemberOperation<Getter>, 0>(name, help, {});
  member.put = Setting::Slots::Function();
  member.invokePut = &Setting::Slots::Invoke;
  member.readValue = [](Object& object, void* value) {
    *static_cast<Value*>(value) = MemberOperation<Getter>::Run(static_cast<Class&>(object));
  };
  member.writeValue = [](Object& object, const void* value) {
    MemberOperation<Setter>::Run(static_cast<Class&>(object), *static_cast<const Value*>(value));
  };
  return member;
}

/// An operation that creates or reads an object, called with its arguments, and that tells how it
/// is published: bit n of `kByReference` says that argument n is passed by reference.
template <class Type>
concept MakingOperation = std::default_initializable<Type> && requires {
  { Type::kByReference } -> std::convertible_to<uint32_t>;
  { Type::ParameterNames() } -> std::same_as<std::vector<std::string_view>>;
  { Type::Help() } -> std::convertible_to<std::string_view>;
  &Type::operator();
};

/// A method that `Operation` runs and that is published as `Form` tells.
template <class Operation, MakingOperation Form>
Member making(std::string_view name, std::string_view help = Form::Help()) {
  Member member = MakeMember<Operation, Form::kByReference>(name, help, Form::ParameterNames());
  member.isMethod = true;
  return member;
}

/// A method that is a callable constant of the class.
template <class Class, const auto& Callable>
Member operation() {
  using Type = std::remove_cvref_t<decltype(Callable)>;
  return making<ConstantOperation<Class, Callable>, Type>(EntityName<&Callable>());
}

/// The member with the identifier that automation gives a meaning of its own.
inline Member WithId(Member member, int32_t id) {
  member.id = id;
  member.hasFixedId = true;
  return member;
}

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_MEMBER_H_
