// What is registered of the library, and the registering itself.
#ifndef PRAXEN_SERVER_REGISTRATION_H_
#define PRAXEN_SERVER_REGISTRATION_H_

#include <string>
#include <string_view>
#include <vector>

#include "praxen/automation/automation.h"
#include "praxen/describe/description.h"

namespace praxen::detail {

/// For whom classes are registered. Elsewhere than on Windows there is only the user.
enum class RegistrationScope { Machine, User };

/// Registers every creatable class, every interface and the type library with this module as the
/// server; what an earlier registration left is replaced. After a failure nothing is registered.
HRESULT Register(RegistrationScope scope) noexcept;

/// Removes all that `Register` adds; nothing to remove is no error.
HRESULT Unregister(RegistrationScope scope) noexcept;

/// The class that marshals interfaces by their description in the type library.
inline constexpr std::string_view kAutomationProxy = "{00020424-0000-0000-C000-000000000046}";

/// The programmatic identifier of a class, such as "PraxenHelper.Variable".
std::string ProgId(const ClassDescription& description);

/// The published classes that clients can create.
std::vector<const ClassDescription*> CreatableClasses();

/// A value of the Windows registry below the key of the classes; an empty name is the key's
/// default.
struct RegistryValue {
  std::string key, name;
  std::u16string value;
};

/// All values of the registration of the server in `file`.
std::vector<RegistryValue> RegistryValues(const std::u16string& file);

/// The keys that hold nothing but this registration; those of `RegistryValues` lie in them.
std::vector<std::string> RegistryKeys();

/// The keys that others may share, inner ones first; each goes when nothing is left in it.
std::vector<std::string> SharedRegistryKeys();

}  // namespace praxen::detail

#endif  // PRAXEN_SERVER_REGISTRATION_H_
