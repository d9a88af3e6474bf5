// The class objects through which clients create objects.
#ifndef PRAXEN_SERVER_CLASS_OBJECT_H_
#define PRAXEN_SERVER_CLASS_OBJECT_H_

#include "praxen/automation/automation.h"

namespace praxen::detail {

/// Makes a class object for a creatable class. CLASS_E_CLASSNOTAVAILABLE for any other identifier,
/// those of the kinds that cannot be created included.
HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** out) noexcept;

/// Whether neither objects, class objects nor locks are left.
bool CanUnload() noexcept;

}  // namespace praxen::detail

#endif  // PRAXEN_SERVER_CLASS_OBJECT_H_
