// The schema against which documents are validated, and where it comes from.
#ifndef PRAXEN_FACTORY_SCHEMA_H_
#define PRAXEN_FACTORY_SCHEMA_H_

#include <filesystem>

#include "praxen/core/text.h"

namespace praxen {

/// Where the schema comes from.
struct SchemaOrigin {
  /// Its file; an empty text when it is the copy in the library.
  Text file;
  /// Whether it is the one that the library came with, byte for byte.
  bool isShipped = true;
};

/// Where the schema in use comes from. Reads it when that was not done yet; raises an error that
/// names file and cause when its file cannot be read.
SchemaOrigin CurrentSchema();

/// Takes the schema from that file. Raises `InvalidArgument` once the schema was read, which the
/// first document does.
void UseSchemaFile(const std::filesystem::path& file);

/// Takes the schema from beside the library, from the installed data folder or from the library, as
/// it is taken unless chosen otherwise, but not from the current folder. Raises as `UseSchemaFile`.
void UseInstalledSchema();

}  // namespace praxen

#endif  // PRAXEN_FACTORY_SCHEMA_H_
