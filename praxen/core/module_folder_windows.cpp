// Where a function of the library was loaded from.
#include <windows.h>

#include <string>

#include "praxen/core/module_folder.h"

namespace praxen::detail {

std::filesystem::path ModuleFile() {
  HMODULE module = nullptr;
  const DWORD flags =
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  if (!GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&ModuleFile), &module)) return {};
  std::wstring path(32768, L'\0');
  const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
  path.resize(length);
  return path;
}

}  // namespace praxen::detail
