// The option that tells in which encoding a command writes.
#ifndef PRAXEN_TOOLS_PRAXEN_ENCODING_OPTION_H_
#define PRAXEN_TOOLS_PRAXEN_ENCODING_OPTION_H_

#include <CLI/CLI.hpp>

#include <map>
#include <string>

#include "tools/praxen/document_text.h"

namespace praxen::detail {

/// Adds "--encoding", which takes utf-8 and utf-16.
inline CLI::Option* AddEncoding(CLI::App& command, Encoding& encoding, const std::string& help) {
  const std::map<std::string, Encoding> names{{"utf-8", Encoding::Utf8},
                                              {"utf-16", Encoding::Utf16}};
  return command.add_option("--encoding", encoding, help)
      ->transform(CLI::CheckedTransformer(names, CLI::ignore_case).description(""));
}

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_ENCODING_OPTION_H_
