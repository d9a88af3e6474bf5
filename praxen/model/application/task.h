// Task, a cyclic activity that runs code of an application.
#ifndef PRAXEN_MODEL_APPLICATION_TASK_H_
#define PRAXEN_MODEL_APPLICATION_TASK_H_

#include "praxen/core/enumerations.h"
#include "praxen/describe/creation.h"
#include "praxen/describe/description.h"

namespace praxen {

class Task final : public describe::Serializable<Task> {
 public:
  Text Name;
  int32_t IntervalTime = 1000;
  TaskPriorityValue Priority = pxTaskPriority2;
  int32_t Offset = 0;
  OutputUpdateValue OutputUpdate = pxUpdateLast;
  bool LatencySupervision = false;
  int32_t LatencyPercentage = 10;
  TaskSILLevelValue TaskSILLevel = pxTaskSIL0;
  Text Guid;

  static constexpr std::string_view kHelp = "A cyclic activity that runs code of an application.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&Task::Name>("Name of the task; required for writing."),
        property<&Task::IntervalTime>("Time from one cycle to the next."),
        property<&Task::Priority>("Priority among the tasks."),
        property<&Task::Offset>("Time by which the first cycle is delayed."),
        property<&Task::OutputUpdate>("When in the cycle the outputs are updated."),
        property<&Task::LatencySupervision>("Whether the latency is supervised."),
        property<&Task::LatencyPercentage>("Latency that is accepted."),
        property<&Task::TaskSILLevel>("Safety integrity level."),
        property<&Task::Guid>("GUID of the task."),
        serialize(),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&Task::Name>(), always<&Task::IntervalTime>(),
                           always<&Task::Priority>(), always<&Task::Offset>(),
                           always<&Task::OutputUpdate>(), always<&Task::LatencySupervision>(),
                           always<&Task::LatencyPercentage>(), always<&Task::TaskSILLevel>(),
                           optional<&Task::Guid>()}};
  }
  using Form = describe::Creation<Task, &Task::Name, &Task::IntervalTime, &Task::Priority>;
  using LongForm = describe::Extended<Form, &Task::Offset, &Task::OutputUpdate>;
};

extern template const describe::ClassDescription& describe::Describe<Task>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_TASK_H_
