// Registration in the user's file of classes, with the reason of a failure.
#ifndef PRAXEN_SERVER_REGISTRATION_POSIX_H_
#define PRAXEN_SERVER_REGISTRATION_POSIX_H_

#include <filesystem>
#include <string>

#include "praxen/automation/automation.h"

namespace praxen::detail {

/// Registers every creatable class with `server`, the file of the shared library. After a failure
/// `reason` names the file that cannot serve and tells why.
HRESULT RegisterServer(const std::filesystem::path& server, std::string* reason = nullptr) noexcept;

/// Removes all that `RegisterServer` adds; nothing to remove is no error.
HRESULT UnregisterServer(std::string* reason = nullptr) noexcept;

}  // namespace praxen::detail

#endif  // PRAXEN_SERVER_REGISTRATION_POSIX_H_
