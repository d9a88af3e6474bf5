# Writes OUTPUT, a C++ file that holds the bytes of the file INPUT, or none when it is missing.
set(bytes "")
if(EXISTS ${INPUT})
  file(READ ${INPUT} hex HEX)
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "'\\\\x\\1'," bytes "${hex}")
endif()
file(WRITE ${OUTPUT} "// Written by embed_schema.cmake: the schema, UTF-8.
#include <string_view>

namespace praxen::detail {

std::string_view EmbeddedSchema();

std::string_view EmbeddedSchema() {
  static constexpr char kSchema[] = {${bytes}'\\0'};
  return {kSchema, sizeof kSchema - 1};
}

}  // namespace praxen::detail
")
