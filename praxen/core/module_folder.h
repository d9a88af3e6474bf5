// Where the library lies.
#ifndef PRAXEN_CORE_MODULE_FOLDER_H_
#define PRAXEN_CORE_MODULE_FOLDER_H_

#include <filesystem>

namespace praxen::detail {

/// The file of the shared library, or of the program that the library is linked into; empty when
/// the system does not tell.
std::filesystem::path ModuleFile();

/// The folder of that file.
inline std::filesystem::path ModuleFolder() { return ModuleFile().parent_path(); }

}  // namespace praxen::detail

#endif  // PRAXEN_CORE_MODULE_FOLDER_H_
