// Creating objects by the name of their class.
#ifndef PRAXEN_AUTOMATION_CREATE_OBJECT_H_
#define PRAXEN_AUTOMATION_CREATE_OBJECT_H_

#include "praxen/automation/automation.h"

namespace praxen {

/// Creates an object by the programmatic identifier of its class, such as u"Library.Class"; the
/// caller owns it. On Windows the calling thread must have entered an apartment before.
HRESULT CreateObject(const char16_t* progId, IDispatch** object) noexcept;

}  // namespace praxen

#endif  // PRAXEN_AUTOMATION_CREATE_OBJECT_H_
