// The interfaces that every object answers besides its own ones.
#ifndef PRAXEN_DESCRIBE_TEAR_OFF_H_
#define PRAXEN_DESCRIBE_TEAR_OFF_H_

#include "praxen/core/object.h"
#include "praxen/platform/automation.h"

namespace praxen {

/// Makes ISupportErrorInfo, or on Windows IProvideClassInfo2 and its base, for the object. The
/// interface keeps the object alive and shares its identity. E_NOINTERFACE for any other
/// identifier.
HRESULT MakeTearOff(Object& object, REFIID iid, void** out);

#ifdef _WIN32
/// The description of a class or interface in the type library that this module carries.
HRESULT GetTypeInformation(REFGUID id, ITypeInfo** out) noexcept;
#endif

}  // namespace praxen

#endif  // PRAXEN_DESCRIBE_TEAR_OFF_H_
