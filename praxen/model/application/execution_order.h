// ExecutionOrder, the order in which the instances of each task are executed.
#ifndef PRAXEN_MODEL_APPLICATION_EXECUTION_ORDER_H_
#define PRAXEN_MODEL_APPLICATION_EXECUTION_ORDER_H_

#include "praxen/model/collection.h"

namespace praxen {

class ExecutionInstance final : public describe::Described<ExecutionInstance> {
 public:
  Text Name;

  static constexpr std::string_view kHelp = "An instance that a task executes.";
  static describe::Members members() {
    using namespace describe;
    return {property<&T::Name>("Name of the instance.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>()}};
  }
  using Form = describe::Creation<T, &T::Name>;
};

class ExecutionGroup final
    : public Collection<ExecutionGroup, ExecutionInstance, SerializableObject> {
 public:
  Text TaskName;

  static constexpr std::string_view kHelp = "The instances that a task executes, in order.";
  static constexpr std::string_view kArgument = "chl";
  static describe::Members members() {
    using namespace describe;
    return Members{property<&T::TaskName>("Name of the task."), serialize()} +
           Collection::members();
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&T::TaskName>()},
            .elements = {choice<ExecutionInstance>()},
            .container = Container::Always};
  }
  static constexpr auto key() { return &T::TaskName; }
  using Form = describe::Creation<T, &T::TaskName>;
};

class ExecutionOrder final : public Collection<ExecutionOrder, ExecutionGroup, SerializableObject> {
 public:
  static constexpr std::string_view kHelp = "The instances that each task executes, in order.";
  static constexpr std::string_view kArgument = "chl";
  static describe::Members members() {
    using namespace describe;
    return Members{serialize()} + Collection::members();
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.elements = {choice<ExecutionGroup>()}, .container = Container::Always};
  }
};

extern template struct describe::Published<ExecutionInstance>;
extern template struct describe::Published<ExecutionOrder>;
extern template struct describe::Published<ExecutionGroup>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_EXECUTION_ORDER_H_
