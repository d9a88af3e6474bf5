// The system's answer to where a function of the library was loaded from.
#include "praxen/platform/module_folder.h"

#ifdef _WIN32
#include <string>

#include "praxen/platform/automation.h"
#else
#include <dlfcn.h>
#endif

namespace praxen {

#ifdef _WIN32
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
#else
std::filesystem::path ModuleFile() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<const void*>(&ModuleFile), &info) == 0) return {};
  std::error_code error;
  const std::filesystem::path file = std::filesystem::absolute(info.dli_fname, error);
  return error ? std::filesystem::path() : file;
}
#endif

std::filesystem::path ModuleFolder() { return ModuleFile().parent_path(); }

}  // namespace praxen
