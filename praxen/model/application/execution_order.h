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
    return {property<&ExecutionInstance::Name>("Name of the instance; required for writing.")};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&ExecutionInstance::Name>()}};
  }
  using Form = describe::Creation<ExecutionInstance, &ExecutionInstance::Name>;
};

class ExecutionGroup final
    : public Collection<ExecutionGroup, ExecutionInstance, SerializableObject> {
 public:
  Text TaskName;

  static constexpr std::string_view kHelp = "The instances that a task executes, in order.";
  static constexpr std::string_view kArgument = "chl";
  static describe::Members members() {
    using namespace describe;
    return Members{property<&ExecutionGroup::TaskName>("Name of the task."), serialize()} +
           Collection::members();
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&ExecutionGroup::TaskName>()},
            .elements = {choice<ExecutionInstance>()},
            .container = Container::Always};
  }
  static constexpr auto key() { return &ExecutionGroup::TaskName; }
  using Form = describe::Creation<ExecutionGroup, &ExecutionGroup::TaskName>;
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

extern template const describe::ClassDescription& describe::Describe<ExecutionInstance>();
extern template const describe::ClassDescription& describe::Describe<ExecutionOrder>();
extern template const describe::ClassDescription& describe::Describe<ExecutionGroup>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_EXECUTION_ORDER_H_
