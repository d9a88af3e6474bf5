// Creating objects by the name of their class, and the registry of classes for systems that have
// none: a small text file per user.

#ifndef PRAXEN_PLATFORM_CLASS_REGISTRY_H_
#define PRAXEN_PLATFORM_CLASS_REGISTRY_H_

#include "praxen/platform/automation.h"

#ifdef _WIN32

#include <objbase.h>

#else

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// The flag of CoCreateInstance for servers that are loaded into the process, the only kind here.
inline constexpr DWORD CLSCTX_INPROC_SERVER = 1;

#pragma GCC visibility push(default)

extern "C" {

// Finds the class of a programmatic identifier; CO_E_CLASSSTRING when it is not registered.
HRESULT CLSIDFromProgID(LPCOLESTR progId, CLSID* clsid) noexcept;

// Loads the server of a class and creates an object of it. REGDB_E_CLASSNOTREG when the class is
// not registered, CO_E_DLLNOTFOUND when the server cannot be loaded, CO_E_ERRORINDLL when it is
// not a server, otherwise what the server answers.
HRESULT CoCreateInstance(REFCLSID clsid, IUnknown* outer, DWORD context, REFIID iid,
                         void** object) noexcept;

// Unloads the servers that agree to it.
HRESULT CoFreeUnusedLibraries() noexcept;

}  // extern "C"

#pragma GCC visibility pop

#endif  // _WIN32

namespace praxen {

// Creates an object by the programmatic identifier of its class, such as u"Library.Class"; the
// caller owns it. On Windows the calling thread must have entered an apartment before.
HRESULT CreateObject(const char16_t* progId, IDispatch** object) noexcept;

#ifndef _WIN32

// Each line of the file holds a programmatic identifier, a class identifier and the absolute path
// of the server, separated by tabs, in UTF-8. Other lines are ignored and kept, and of several
// lines for the same class the first counts. The file is replaced as a whole, so that a reader
// never sees half of it; of two processes that write at the same time, the later one wins.

// A class that a server offers.
struct ClassEntry {
  // Without tabs and line breaks; compared without regard to case.
  std::string progId;
  CLSID clsid;
};

// Where a class is found.
struct ClassLocation {
  CLSID clsid;
  std::filesystem::path server;
};

// The registry file: the one that the environment variable PRAXENHELPER_REGISTRY names, otherwise
// praxenhelper/classes in the user's data folder; empty when the user has no such folder.
std::filesystem::path RegistryFile();

// Registers the classes of a server in place of what was registered under their names and
// identifiers. E_INVALIDARG for names or a path that the file cannot hold, REGDB_E_READREGDB and
// REGDB_E_WRITEREGDB when the file cannot be read or replaced.
HRESULT RegisterClasses(std::span<const ClassEntry> classes,
                        const std::filesystem::path& server) noexcept;

// Removes classes from the registry; those that are not in it do no harm.
HRESULT UnregisterClasses(std::span<const CLSID> classes) noexcept;

// Finds a class by its programmatic identifier, without regard to case.
std::optional<ClassLocation> LookUpProgId(std::string_view progId);

// Finds a class by its identifier.
std::optional<ClassLocation> LookUpClsid(REFCLSID clsid);

#endif  // _WIN32

}  // namespace praxen

#endif  // PRAXEN_PLATFORM_CLASS_REGISTRY_H_
