// The list of generated files.
#include "tools/generate/documents.h"

#include "tools/generate/manifest.h"
#include "tools/generate/schema.h"
#include "tools/generate/type_library.h"

namespace praxen::detail {

std::vector<GeneratedFile> GenerateFiles() {
  return {{"schema/PraxenSchema3_0.xsd", GenerateSchema()},
          {"praxen/server/PraxenHelper.idl", GenerateTypeLibrary()},
          {"praxen/server/PraxenHelper.manifest", GenerateManifest()},
          {"docs/xml-format.md", XmlFormatDocument()},
          {"docs/api.md", ApiDocument()}};
}

}  // namespace praxen::detail
