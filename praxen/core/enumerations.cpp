// The tables of the enumerations and the one conversion in either direction.
#include "praxen/core/enumerations.h"

#include <algorithm>

#include "praxen/core/ascii.h"
#include "praxen/core/entity_name.h"

namespace praxen::describe {

namespace {

template <auto Value>
constexpr EnumerationConstant constant(std::u16string_view text) {
  return {EntityName<Value>(), Value, text};
}

constexpr EnumerationConstant kDirections[] = {constant<pxIn>(u"in"), constant<pxInOut>(u"in_out"),
                                               constant<pxOut>(u"out")};
constexpr EnumerationConstant kScopes[] = {constant<pxPublic>(u"public"),
                                           constant<pxPrivate>(u"private")};
constexpr EnumerationConstant kVisibilities[] = {constant<pxDefault>(u"default"),
                                                 constant<pxVisible>(u"visible"),
                                                 constant<pxInvisible>(u"invisible")};
constexpr EnumerationConstant kAutoPositions[] = {
    constant<pxTop>(u"Top"), constant<pxBottom>(u"Bottom"), constant<pxLeft>(u"Left"),
    constant<pxRight>(u"Right")};
constexpr EnumerationConstant kSFCPriorities[] = {
    constant<pxSFCPriorityDefault>(u"default"), constant<pxSFCPriorityLowest>(u"lowest"),
    constant<pxSFCPriorityLow>(u"low"),         constant<pxSFCPriorityMedium>(u"medium"),
    constant<pxSFCPriorityHigh>(u"high"),       constant<pxSFCPriorityHighest>(u"highest")};
constexpr EnumerationConstant kMessageTypes[] = {
    constant<pxUndefPOUMsg>(u"UndefPOU"),           constant<pxDataTypeMsg>(u"DataType"),
    constant<pxFunctionMsg>(u"Function"),           constant<pxFunctionBlockMsg>(u"FunctionBlock"),
    constant<pxModuleTypeMsg>(u"ModuleType"),       constant<pxSingleModuleMsg>(u"SingleModule"),
    constant<pxRootModuleMsg>(u"RootModule"),       constant<pxProgramTypeMsg>(u"ProgramType"),
    constant<pxSingleProgramMsg>(u"SingleProgram"), constant<pxHWMsg>(u"MessageHW"),
    constant<pxVarAccessMsg>(u"VarAccess"),         constant<pxGeneralMsg>(u"MessageGeneral"),
    constant<pxSingleDiagramMsg>(u"SingleDiagram"), constant<pxDiagramTypeMsg>(u"DiagramType"),
    constant<pxOtherMsg>(u"MessageGeneral")};
constexpr EnumerationConstant kTaskPriorities[] = {
    constant<pxTaskPriority0>(u"0"), constant<pxTaskPriority1>(u"1"),
    constant<pxTaskPriority2>(u"2"), constant<pxTaskPriority3>(u"3"),
    constant<pxTaskPriority4>(u"4"), constant<pxTaskPriority5>(u"5")};
constexpr EnumerationConstant kOutputUpdates[] = {constant<pxUpdateFirst>(u"first"),
                                                  constant<pxUpdateLast>(u"last")};
constexpr EnumerationConstant kTaskSILLevels[] = {
    constant<pxTaskSIL0>(u"NonSIL"), constant<pxTaskSIL2>(u"SIL2"), constant<pxTaskSIL3>(u"SIL3")};
constexpr EnumerationConstant kTaskSILSpellings[] = {
    constant<pxTaskSIL0>(u"nonsil"), constant<pxTaskSIL0>(u"0"), constant<pxTaskSIL2>(u"sil2"),
    constant<pxTaskSIL2>(u"2")};

template <class E>
struct Description;
template <>
struct Description<AutoPosValue> {
  static constexpr EnumerationDescription value{
      "AutoPosValue", "Side of the graphics of a control module.", kAutoPositions, pxRight};
};
template <>
struct Description<DirectionValue> {
  static constexpr EnumerationDescription value{"DirectionValue", "Direction of a parameter.",
                                                kDirections, pxOut};
};
template <>
struct Description<MessageTypeValue> {
  static constexpr EnumerationDescription value{"MessageTypeValue",
                                                "Kind of project object that a message concerns.",
                                                kMessageTypes, pxOtherMsg};
};
template <>
struct Description<OutputUpdateValue> {
  static constexpr EnumerationDescription value{
      "OutputUpdateValue", "When a task updates its outputs.", kOutputUpdates, pxUpdateLast};
};
template <>
struct Description<SFCPriorityValue> {
  static constexpr EnumerationDescription value{"SFCPriorityValue",
                                                "Priority of a branch of a selection.",
                                                kSFCPriorities, pxSFCPriorityDefault};
};
template <>
struct Description<ScopeValue> {
  static constexpr EnumerationDescription value{"ScopeValue", "Where a type can be used.", kScopes,
                                                pxPrivate};
};
template <>
struct Description<TaskPriorityValue> {
  static constexpr EnumerationDescription value{"TaskPriorityValue", "Priority of a task.",
                                                kTaskPriorities, pxTaskPriority5};
};
template <>
struct Description<TaskSILLevelValue> {
  static constexpr EnumerationDescription value{"TaskSILLevelValue",
                                                "Safety integrity level of a task.", kTaskSILLevels,
                                                pxTaskSIL3, kTaskSILSpellings};
};
template <>
struct Description<VisibilityInGraphicsValue> {
  static constexpr EnumerationDescription value{
      "VisibilityInGraphicsValue", "Visibility of a control module in its parent's graphics.",
      kVisibilities, pxInvisible};
};

constexpr const EnumerationDescription* kAll[] = {&Description<AutoPosValue>::value,
                                                  &Description<DirectionValue>::value,
                                                  &Description<MessageTypeValue>::value,
                                                  &Description<OutputUpdateValue>::value,
                                                  &Description<SFCPriorityValue>::value,
                                                  &Description<ScopeValue>::value,
                                                  &Description<TaskPriorityValue>::value,
                                                  &Description<TaskSILLevelValue>::value,
                                                  &Description<VisibilityInGraphicsValue>::value};

}  // namespace

std::u16string_view EnumerationDescription::ToText(int32_t value) const noexcept {
  const auto found = std::ranges::find(constants, value, &EnumerationConstant::value);
  return found == constants.end() ? std::u16string_view() : found->text;
}

int32_t EnumerationDescription::FromText(std::u16string_view text) const noexcept {
  for (const EnumerationConstant& constant : constants) {
    if (constant.text == text) return constant.value;
  }
  for (const EnumerationConstant& spelling : spellings) {
    if (EqualsIgnoringCase(spelling.text, text)) return spelling.value;
  }
  return otherwise;
}

template <class E>
const EnumerationDescription& DescribeEnumeration() noexcept {
  return Description<E>::value;
}
template const EnumerationDescription& DescribeEnumeration<AutoPosValue>() noexcept;
template const EnumerationDescription& DescribeEnumeration<DirectionValue>() noexcept;
template const EnumerationDescription& DescribeEnumeration<MessageTypeValue>() noexcept;
template const EnumerationDescription& DescribeEnumeration<OutputUpdateValue>() noexcept;
template const EnumerationDescription& DescribeEnumeration<SFCPriorityValue>() noexcept;
template const EnumerationDescription& DescribeEnumeration<ScopeValue>() noexcept;
template const EnumerationDescription& DescribeEnumeration<TaskPriorityValue>() noexcept;
template const EnumerationDescription& DescribeEnumeration<TaskSILLevelValue>() noexcept;
template const EnumerationDescription& DescribeEnumeration<VisibilityInGraphicsValue>() noexcept;

std::span<const EnumerationDescription* const> AllEnumerations() noexcept { return kAll; }

}  // namespace praxen::describe

namespace praxen {

using namespace describe;

namespace {

template <class E>
E FromText(std::u16string_view text) {
  return static_cast<E>(DescribeEnumeration<E>().FromText(text));
}

}  // namespace

std::u16string_view DirectionToText(int32_t value) {
  return DescribeEnumeration<DirectionValue>().ToText(value);
}
std::u16string_view ScopeToText(int32_t value) {
  return DescribeEnumeration<ScopeValue>().ToText(value);
}
std::u16string_view VisibilityToText(int32_t value) {
  return DescribeEnumeration<VisibilityInGraphicsValue>().ToText(value);
}
std::u16string_view AutoPosToText(int32_t value) {
  return DescribeEnumeration<AutoPosValue>().ToText(value);
}
std::u16string_view SFCPriorityToText(int32_t value) {
  return DescribeEnumeration<SFCPriorityValue>().ToText(value);
}
std::u16string_view MessageTypeToText(int32_t value) {
  return DescribeEnumeration<MessageTypeValue>().ToText(value);
}
std::u16string_view TaskPriorityToText(int32_t value) {
  return DescribeEnumeration<TaskPriorityValue>().ToText(value);
}
std::u16string_view OutputUpdateToText(int32_t value) {
  return DescribeEnumeration<OutputUpdateValue>().ToText(value);
}
std::u16string_view SILLevelToText(int32_t value) {
  return DescribeEnumeration<TaskSILLevelValue>().ToText(value);
}

DirectionValue TextToDirection(std::u16string_view text) { return FromText<DirectionValue>(text); }
ScopeValue TextToScope(std::u16string_view text) { return FromText<ScopeValue>(text); }
VisibilityInGraphicsValue TextToVisibility(std::u16string_view text) {
  return FromText<VisibilityInGraphicsValue>(text);
}
AutoPosValue TextToAutoPos(std::u16string_view text) { return FromText<AutoPosValue>(text); }
SFCPriorityValue TextToSFCPriority(std::u16string_view text) {
  return FromText<SFCPriorityValue>(text);
}
MessageTypeValue TextToMessageType(std::u16string_view text) {
  return FromText<MessageTypeValue>(text);
}
TaskPriorityValue TextToTaskPriority(std::u16string_view text) {
  return FromText<TaskPriorityValue>(text);
}
OutputUpdateValue TextToOutputUpdate(std::u16string_view text) {
  return FromText<OutputUpdateValue>(text);
}
TaskSILLevelValue TextToSILLevel(std::u16string_view text) {
  return FromText<TaskSILLevelValue>(text);
}

}  // namespace praxen
