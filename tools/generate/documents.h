// The documents that are made from the descriptions of the classes.
#ifndef PRAXEN_TOOLS_GENERATE_DOCUMENTS_H_
#define PRAXEN_TOOLS_GENERATE_DOCUMENTS_H_

#include <string>
#include <vector>

namespace praxen::detail {

struct GeneratedFile {
  /// From the root of the source tree.
  std::string path;
  std::string content;
};

/// docs/xml-format.md: every element with its attributes, children and an example.
std::string XmlFormatDocument();
/// docs/api.md: every class with its members, types and creation values.
std::string ApiDocument();

/// All generated files that are checked in.
std::vector<GeneratedFile> GenerateFiles();

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_GENERATE_DOCUMENTS_H_
