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
        property<&T::Name>("Name of the task."),
        property<&T::IntervalTime>(
            "Time from one cycle to the next, in the engineering tool's unit."),
        property<&T::Priority>("Priority among the tasks."),
        property<&T::Offset>(
            "Time by which the first cycle is delayed, in the unit of IntervalTime."),
        property<&T::OutputUpdate>("When in the cycle the outputs are updated."),
        property<&T::LatencySupervision>("Whether the latency is supervised."),
        property<&T::LatencyPercentage>("Latency that is accepted, in per cent."),
        property<&T::TaskSILLevel>("Safety integrity level."),
        property<&T::Guid>("GUID of the task."),
        serialize(),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), always<&T::IntervalTime>(), always<&T::Priority>(),
                           always<&T::Offset>(), always<&T::OutputUpdate>(),
                           always<&T::LatencySupervision>(), always<&T::LatencyPercentage>(),
                           always<&T::TaskSILLevel>(), optional<&T::Guid>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::IntervalTime, &T::Priority>;
  using LongForm = describe::Extended<Form, &T::Offset, &T::OutputUpdate>;
};

extern template struct describe::Published<Task>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_TASK_H_
