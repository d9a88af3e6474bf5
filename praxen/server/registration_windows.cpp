// Registration in the registry of Windows, for the machine or the user.
#include "praxen/automation/guard.h"
#include "praxen/core/module_folder.h"
#include "praxen/server/registration.h"

namespace praxen::detail {

namespace {

HRESULT ToResult(LSTATUS status) { return HRESULT_FROM_WIN32(static_cast<unsigned long>(status)); }

std::wstring ToWide(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

// The key below which the classes of a scope lie.
class ClassesKey {
 public:
  explicit ClassesKey(RegistrationScope scope) {
    const HKEY root = scope == RegistrationScope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
    status_ = RegCreateKeyExW(root, L"Software\\Classes", 0, nullptr, 0,
                              KEY_READ | KEY_WRITE | DELETE, nullptr, &key_, nullptr);
  }
  ClassesKey(const ClassesKey&) = delete;
  ClassesKey& operator=(const ClassesKey&) = delete;
  ~ClassesKey() {
    if (key_ != nullptr) RegCloseKey(key_);
  }

  LSTATUS status() const { return status_; }

  LSTATUS Set(const RegistryValue& value) const {
    const auto bytes = static_cast<DWORD>((value.value.size() + 1) * sizeof(char16_t));
    return RegSetKeyValueW(key_, ToWide(value.key).c_str(),
                           value.name.empty() ? nullptr : ToWide(value.name).c_str(), REG_SZ,
                           value.value.c_str(), bytes);
  }

  LSTATUS DeleteAll(const std::string& key) const {
    return WithoutMissing(RegDeleteTreeW(key_, ToWide(key).c_str()));
  }

  LSTATUS DeleteWhenEmpty(const std::string& key) const {
    HKEY opened = nullptr;
    const LSTATUS status = RegOpenKeyExW(key_, ToWide(key).c_str(), 0, KEY_READ, &opened);
    if (status != ERROR_SUCCESS) return WithoutMissing(status);
    DWORD keys = 0, values = 0;
    const LSTATUS counted = RegQueryInfoKeyW(opened, nullptr, nullptr, nullptr, &keys, nullptr,
                                             nullptr, &values, nullptr, nullptr, nullptr, nullptr);
    RegCloseKey(opened);
    if (counted != ERROR_SUCCESS || keys > 0 || values > 0) return counted;
    return WithoutMissing(RegDeleteKeyW(key_, ToWide(key).c_str()));
  }

 private:
  static LSTATUS WithoutMissing(LSTATUS status) {
    return status == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : status;
  }

  HKEY key_ = nullptr;
  LSTATUS status_;
};

LSTATUS SetAll(const ClassesKey& classes) {
  if (classes.status() != ERROR_SUCCESS) return classes.status();
  for (const RegistryValue& value : RegistryValues(ModuleFile().u16string())) {
    if (const LSTATUS status = classes.Set(value); status != ERROR_SUCCESS) return status;
  }
  return ERROR_SUCCESS;
}

// Removes what can be removed; the first failure is told.
LSTATUS DeleteAll(const ClassesKey& classes) {
  LSTATUS first = classes.status();
  if (first != ERROR_SUCCESS) return first;
  const auto note = [&](LSTATUS status) {
    if (first == ERROR_SUCCESS) first = status;
  };
  for (const std::string& key : RegistryKeys()) note(classes.DeleteAll(key));
  for (const std::string& key : SharedRegistryKeys()) note(classes.DeleteWhenEmpty(key));
  return first;
}

}  // namespace

HRESULT Register(RegistrationScope scope) noexcept {
  return Guarded([&] {
    const ClassesKey classes(scope);
    const LSTATUS status = SetAll(classes);
    if (status != ERROR_SUCCESS) DeleteAll(classes);
    return ToResult(status);
  });
}

HRESULT Unregister(RegistrationScope scope) noexcept {
  return Guarded([&] { return ToResult(DeleteAll(ClassesKey(scope))); });
}

}  // namespace praxen::detail
