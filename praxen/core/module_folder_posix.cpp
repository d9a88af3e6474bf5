// Where a function of the library was loaded from.
#include <dlfcn.h>
#include <link.h>

#include "praxen/core/module_folder.h"

namespace praxen::detail {

std::filesystem::path ModuleFile() {
  Dl_info info{};
  void* entry = nullptr;
  const void* const place = reinterpret_cast<const void*>(&ModuleFile);
  if (dladdr1(place, &info, &entry, RTLD_DL_LINKMAP) == 0) return {};
  // The program has no name among what is loaded, and the one with which it was started need not be
  // that of a file.
  const char* const name = static_cast<const link_map*>(entry)->l_name;
  std::error_code error;
  std::filesystem::path file = *name == '\0'
                                   ? std::filesystem::read_symlink("/proc/self/exe", error)
                                   : std::filesystem::absolute(name, error);
  return error ? std::filesystem::path() : file;
}

}  // namespace praxen::detail
