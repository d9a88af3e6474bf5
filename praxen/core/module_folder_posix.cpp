// Where a function of the library was loaded from.
#include <dlfcn.h>

#include "praxen/core/module_folder.h"

namespace praxen::detail {

std::filesystem::path ModuleFile() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<const void*>(&ModuleFile), &info) == 0) return {};
  std::error_code error;
  const std::filesystem::path file = std::filesystem::absolute(info.dli_fname, error);
  return error ? std::filesystem::path() : file;
}

}  // namespace praxen::detail
