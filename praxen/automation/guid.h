// Automation's identifiers, which are the same as the library's in other clothes.
#ifndef PRAXEN_AUTOMATION_GUID_H_
#define PRAXEN_AUTOMATION_GUID_H_

#include <bit>
#include <optional>
#include <string>
#include <string_view>

#include "praxen/automation/automation.h"
#include "praxen/core/uuid.h"

namespace praxen::detail {

constexpr GUID ToGuid(const Uuid& uuid) { return std::bit_cast<GUID>(uuid); }
constexpr Uuid ToUuid(const GUID& guid) { return std::bit_cast<Uuid>(guid); }

inline std::string GuidToText(const GUID& guid) { return UuidToText(ToUuid(guid)); }
inline std::optional<GUID> TextToGuid(std::string_view text) {
  const auto uuid = TextToUuid(text);
  return uuid ? std::optional(ToGuid(*uuid)) : std::nullopt;
}

}  // namespace praxen::detail

#endif  // PRAXEN_AUTOMATION_GUID_H_
