// ExecutionOrder, the order in which the instances of each task are executed.
#ifndef PRAXEN_MODEL_APPLICATION_EXECUTION_ORDER_H_
#define PRAXEN_MODEL_APPLICATION_EXECUTION_ORDER_H_

#include "praxen/model/collection.h"

namespace praxen {

class ExecutionInstance final : public Described<ExecutionInstance> {
 public:
  Text Name;

  static constexpr std::string_view kHelp = "An instance that a task executes.";
  static Members members() {
    return {property<&ExecutionInstance::Name>("Name of the instance; required for writing.")};
  }
  static Layout layout() { return {.attributes = {required<&ExecutionInstance::Name>()}}; }
  using Form = Creation<ExecutionInstance, &ExecutionInstance::Name>;
};

class ExecutionGroup final
    : public Collection<ExecutionGroup, ExecutionInstance, SerializableObject> {
 public:
  Text TaskName;

  static constexpr std::string_view kHelp = "The instances that a task executes, in order.";
  static constexpr std::string_view kArgument = "chl";
  static Members members() {
    return Members{property<&ExecutionGroup::TaskName>("Name of the task."), serialize()} +
           Collection::members();
  }
  static Layout layout() {
    return {.attributes = {always<&ExecutionGroup::TaskName>()},
            .elements = {choice<ExecutionInstance>()},
            .container = Container::Always};
  }
  static constexpr auto key() { return &ExecutionGroup::TaskName; }
  using Form = Creation<ExecutionGroup, &ExecutionGroup::TaskName>;
};

class ExecutionOrder final : public Collection<ExecutionOrder, ExecutionGroup, SerializableObject> {
 public:
  static constexpr std::string_view kHelp = "The instances that each task executes, in order.";
  static constexpr std::string_view kArgument = "chl";
  static Members members() { return Members{serialize()} + Collection::members(); }
  static Layout layout() {
    return {.elements = {choice<ExecutionGroup>()}, .container = Container::Always};
  }
};

extern template const ClassDescription& Describe<ExecutionInstance>();
extern template const ClassDescription& Describe<ExecutionOrder>();
extern template const ClassDescription& Describe<ExecutionGroup>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_EXECUTION_ORDER_H_
