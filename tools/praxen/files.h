// The files that the arguments of a command name: folders and wildcards stand for the files in
// them.
#ifndef PRAXEN_TOOLS_PRAXEN_FILES_H_
#define PRAXEN_TOOLS_PRAXEN_FILES_H_

#include <string>
#include <vector>

namespace praxen::detail {

/// A file, or what an argument is in place of one.
struct NamedFile {
  std::string name;
  /// Why there is none, such as a folder without documents; else empty.
  std::string fault = {};
};

/// The files in the order of the arguments. A folder stands for all files "*.xml" in it and in the
/// folders below, in the order of their names. Where the shell does not expand wildcards, on
/// Windows, a name with wildcards stands for the files that match.
std::vector<NamedFile> FindFiles(const std::vector<std::string>& arguments);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_FILES_H_
