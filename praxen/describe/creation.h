// Creating operations, each described once by the properties that its arguments set.
#ifndef PRAXEN_DESCRIBE_CREATION_H_
#define PRAXEN_DESCRIBE_CREATION_H_

#include <string_view>
#include <type_traits>
#include <vector>

#include "praxen/core/entity_name.h"
#include "praxen/describe/object.h"
#include "praxen/describe/slots.h"

namespace praxen::describe {

/// A property that a creating operation sets from a text passed by reference.
template <auto Pointer>
struct ByReferenceStep {
  static constexpr auto kMember = Pointer;
  using Argument = typename MemberPointer<decltype(Pointer)>::Value;
  static constexpr bool kByReference = true;
};
template <auto Pointer>
inline constexpr ByReferenceStep<Pointer> byReference;

/// A property that a creating operation sets from an argument of another type.
template <auto Pointer, class Type>
struct ConvertedStep {
  static constexpr auto kMember = Pointer;
  using Argument = Type;
  static constexpr bool kByReference = false;
};
/// A property that a creating operation sets from any automation value.
template <auto Pointer>
inline constexpr ConvertedStep<Pointer, AnyValue> anyValue;
/// A property of a type of its own that a creating operation sets from a text.
template <auto Pointer>
inline constexpr ConvertedStep<Pointer, Text> asText;

}  // namespace praxen::describe

namespace praxen::detail {

template <auto Step>
struct StepOf {
  static constexpr auto kMember = Step.kMember;
  using Argument = typename decltype(Step)::Argument;
  static constexpr bool kByReference = Step.kByReference;
};
template <auto Step>
requires std::is_member_object_pointer_v<decltype(Step)>
struct StepOf<Step> {
  static constexpr auto kMember = Step;
  using Argument = typename MemberPointer<decltype(Step)>::Value;
  static constexpr bool kByReference = false;
};

struct NoPreparation {
  template <class Class>
  static void Prepare(Class&) {}
};

}  // namespace praxen::detail

namespace praxen::describe {

/// Creates an object, lets `Preparation` set what no argument tells, and sets the properties named
/// by `Steps` from the arguments, in that order. An argument is named like its property.
template <class Class, class Preparation, auto... Steps>
struct PreparedCreation {
  using Created = Class;
  template <auto Step>
  using Argument = const typename detail::StepOf<Step>::Argument&;

  static constexpr uint32_t kByReference = [] {
    uint32_t mask = 0;
    [[maybe_unused]] uint32_t bit = 1;
    ((mask |= detail::StepOf<Steps>::kByReference ? bit : 0, bit <<= 1), ...);
    return mask;
  }();

  Ref<Class> operator()(Argument<Steps>... arguments) const {
    Ref<Class> object = New<Class>();
    Preparation::Prepare(*object);
    ((object.get()->*detail::StepOf<Steps>::kMember = arguments), ...);
    return object;
  }

  static std::vector<std::string_view> ParameterNames() {
    return {EntityName<detail::StepOf<Steps>::kMember>()...};
  }
  static std::string_view Help() { return "Creates an object with the given values."; }
};

template <class Class, auto... Steps>
using Creation = PreparedCreation<Class, detail::NoPreparation, Steps...>;

}  // namespace praxen::describe

namespace praxen::detail {

template <class Form, auto... More>
struct Extend;
template <class Class, class Preparation, auto... Steps, auto... More>
struct Extend<PreparedCreation<Class, Preparation, Steps...>, More...> {
  using type = PreparedCreation<Class, Preparation, Steps..., More...>;
};

}  // namespace praxen::detail

namespace praxen::describe {

/// A creating operation that takes further arguments after those of another.
template <class Form, auto... More>
using Extended = typename detail::Extend<Form, More...>::type;

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_CREATION_H_
