// The manifest for using the library on Windows without registering it.
#ifndef PRAXEN_TOOLS_GENERATE_MANIFEST_H_
#define PRAXEN_TOOLS_GENERATE_MANIFEST_H_

#include <string>

namespace praxen::detail {

/// An assembly manifest in UTF-8 that names every creatable class and every interface; it lies
/// beside the library and is named as a dependency by the program that uses it.
std::string GenerateManifest();

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_GENERATE_MANIFEST_H_
