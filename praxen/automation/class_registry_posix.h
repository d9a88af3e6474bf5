// The registry of classes for systems that have none: a small text file per user.
#ifndef PRAXEN_AUTOMATION_CLASS_REGISTRY_POSIX_H_
#define PRAXEN_AUTOMATION_CLASS_REGISTRY_POSIX_H_

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "praxen/automation/automation.h"

namespace praxen::detail {

// Each line of the file holds a programmatic identifier, a class identifier and the absolute path
// of the server, separated by tabs, in UTF-8. Other lines are ignored and kept, and of several
// lines for the same class the first counts. The file is replaced as a whole, so that a reader
// never sees half of it, and keeps its permissions; a symbolic link stays, and its target is
// replaced. Its folder is locked while the file changes, so that processes take turns.

/// A class that a server offers.
struct ClassEntry {
  /// Without tabs and line breaks; compared without regard to case.
  std::string progId;
  CLSID clsid;
};

/// Where a class is found.
struct ClassLocation {
  CLSID clsid;
  std::filesystem::path server;
};

/// The registry file: the one that the environment variable PRAXENHELPER_REGISTRY names, otherwise
/// praxenhelper/classes in the user's data folder; empty when the user has no such folder, which
/// has an absolute path.
std::filesystem::path RegistryFile();

/// Registers the classes of a server in place of what was registered under their names and
/// identifiers. E_INVALIDARG for names or a path that the file cannot hold, REGDB_E_READREGDB and
/// REGDB_E_WRITEREGDB when the file cannot be read or replaced; `reason` then names it and tells
/// why.
HRESULT RegisterClasses(std::span<const ClassEntry> classes, const std::filesystem::path& server,
                        std::string* reason = nullptr) noexcept;

/// Removes classes from the registry; those that are not in it do no harm.
HRESULT UnregisterClasses(std::span<const CLSID> classes, std::string* reason = nullptr) noexcept;

/// Finds a class by its programmatic identifier, without regard to case.
std::optional<ClassLocation> LookUpProgId(std::string_view progId);

/// Finds a class by its identifier.
std::optional<ClassLocation> LookUpClsid(REFCLSID clsid);

}  // namespace praxen::detail

#endif  // PRAXEN_AUTOMATION_CLASS_REGISTRY_POSIX_H_
