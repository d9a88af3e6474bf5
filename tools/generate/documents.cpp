// The list of generated files.
#include "tools/generate/documents.h"

#include "praxen/describe/schema.h"
#include "praxen/describe/type_library.h"

namespace praxen {

std::vector<GeneratedFile> GenerateFiles() {
  return {{"schema/PraxenSchema3_0.xsd", GenerateSchema()},
          {"praxen/server/PraxenHelper.idl", GenerateTypeLibrary()},
          {"docs/xml-format.md", XmlFormatDocument()},
          {"docs/api.md", ApiDocument()}};
}

}  // namespace praxen
