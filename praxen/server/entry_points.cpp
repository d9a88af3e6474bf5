// The entry points through which the system uses the library as an in-process server.
#include "praxen/automation/automation.h"
#include "praxen/server/class_object.h"
#include "praxen/server/registration.h"

#ifdef _WIN32
#include <shlwapi.h>
#else
STDAPI DllRegisterServer();
STDAPI DllUnregisterServer();
STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** out);
STDAPI DllCanUnloadNow();
#endif

STDAPI DllRegisterServer() {
  return praxen::detail::Register(praxen::detail::RegistrationScope::Machine);
}

STDAPI DllUnregisterServer() {
  return praxen::detail::Unregister(praxen::detail::RegistrationScope::Machine);
}

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** out) {
  return praxen::detail::GetClassObject(clsid, iid, out);
}

STDAPI DllCanUnloadNow() { return praxen::detail::CanUnload() ? S_OK : S_FALSE; }

#ifdef _WIN32
// Called by "regsvr32 /n /i:user" to register for the user alone.
STDAPI DllInstall(BOOL install, LPCWSTR scope) {
  if (scope == nullptr || lstrcmpiW(scope, L"user") != 0) return E_INVALIDARG;
  return install ? praxen::detail::Register(praxen::detail::RegistrationScope::User)
                 : praxen::detail::Unregister(praxen::detail::RegistrationScope::User);
}
#endif
