// The nine enumerations of the object model, described once, and their text forms.
#ifndef PRAXEN_CORE_ENUMERATIONS_H_
#define PRAXEN_CORE_ENUMERATIONS_H_

#include <cstdint>
#include <span>
#include <string_view>

#include "praxen/core/text.h"

namespace praxen {

/// Direction of a parameter.
enum DirectionValue : int32_t { pxIn, pxInOut, pxOut };

/// Where a type can be used.
enum ScopeValue : int32_t { pxPublic, pxPrivate };

/// Visibility of a control module in its parent's graphics.
enum VisibilityInGraphicsValue : int32_t { pxDefault, pxVisible, pxInvisible };

/// Side of a control module's graphics at which a parameter is connected.
enum AutoPosValue : int32_t { pxTop, pxBottom, pxLeft, pxRight };

/// Priority of a branch of a selection.
enum SFCPriorityValue : int32_t {
  pxSFCPriorityDefault,
  pxSFCPriorityLowest,
  pxSFCPriorityLow,
  pxSFCPriorityMedium,
  pxSFCPriorityHigh,
  pxSFCPriorityHighest
};

/// Kind of project object that a compiler message concerns.
enum MessageTypeValue : int32_t {
  pxUndefPOUMsg,
  pxDataTypeMsg,
  pxFunctionMsg,
  pxFunctionBlockMsg,
  pxModuleTypeMsg,
  pxSingleModuleMsg,
  pxRootModuleMsg,
  pxProgramTypeMsg,
  pxSingleProgramMsg,
  pxHWMsg,
  pxVarAccessMsg,
  pxGeneralMsg,
  pxSingleDiagramMsg,
  pxDiagramTypeMsg,
  pxOtherMsg
};

/// Priority of a task; 0 is the highest.
enum TaskPriorityValue : int32_t {
  pxTaskPriority0,
  pxTaskPriority1,
  pxTaskPriority2,
  pxTaskPriority3,
  pxTaskPriority4,
  pxTaskPriority5
};

/// When a task updates its outputs.
enum OutputUpdateValue : int32_t { pxUpdateFirst, pxUpdateLast };

/// Safety integrity level of a task.
enum TaskSILLevelValue : int32_t { pxTaskSIL0, pxTaskSIL2, pxTaskSIL3 };

}  // namespace praxen

namespace praxen::describe {

/// A constant of an enumeration with its text in the exchange format.
struct EnumerationConstant {
  std::string_view name;
  int32_t value;
  std::u16string_view text;
};

/// An enumeration as the type library and the exchange format know it. Any integer may be assigned
/// to a property of an enumeration.
struct EnumerationDescription {
  std::string_view name;
  std::string_view help;
  std::span<const EnumerationConstant> constants;
  /// What an unknown text reads as.
  int32_t otherwise;
  /// Reading takes the texts in any letter case, and these besides.
  std::span<const EnumerationConstant> spellings = {};

  /// The text of the first constant of that value; empty for a value outside the enumeration.
  std::u16string_view ToText(int32_t value) const noexcept;
  int32_t FromText(std::u16string_view text) const noexcept;
};

/// The description of the enumeration `E`.
template <class E>
const EnumerationDescription& DescribeEnumeration() noexcept;

/// All nine, in the order of their names.
std::span<const EnumerationDescription* const> AllEnumerations() noexcept;

}  // namespace praxen::describe

namespace praxen {

std::u16string_view DirectionToText(int32_t value);
std::u16string_view ScopeToText(int32_t value);
std::u16string_view VisibilityToText(int32_t value);
std::u16string_view AutoPosToText(int32_t value);
std::u16string_view SFCPriorityToText(int32_t value);
std::u16string_view MessageTypeToText(int32_t value);
std::u16string_view TaskPriorityToText(int32_t value);
std::u16string_view OutputUpdateToText(int32_t value);
std::u16string_view SILLevelToText(int32_t value);

DirectionValue TextToDirection(std::u16string_view text);
ScopeValue TextToScope(std::u16string_view text);
VisibilityInGraphicsValue TextToVisibility(std::u16string_view text);
AutoPosValue TextToAutoPos(std::u16string_view text);
SFCPriorityValue TextToSFCPriority(std::u16string_view text);
MessageTypeValue TextToMessageType(std::u16string_view text);
TaskPriorityValue TextToTaskPriority(std::u16string_view text);
OutputUpdateValue TextToOutputUpdate(std::u16string_view text);
/// Takes "nonsil", "sil2" and "sil3" in any letter case, and "0" and "2" for the first two.
TaskSILLevelValue TextToSILLevel(std::u16string_view text);

}  // namespace praxen

#endif  // PRAXEN_CORE_ENUMERATIONS_H_
