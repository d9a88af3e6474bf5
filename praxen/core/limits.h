// Limits that keep hostile or mistaken input from exhausting the stack.
#ifndef PRAXEN_CORE_LIMITS_H_
#define PRAXEN_CORE_LIMITS_H_

#include <cstdint>

#include "praxen/platform/xml_limits.h"

namespace praxen {

/// How deep elements may be nested, in documents that are read as in objects that are written.
/// Chosen so that writing and reading stay within a stack of 1 MiB.
inline constexpr uint32_t kDeepestNesting = kMaxXmlDepth;

}  // namespace praxen

#endif  // PRAXEN_CORE_LIMITS_H_
