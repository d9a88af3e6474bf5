// The option that tells in which encoding a command writes.
#ifndef PRAXEN_TOOLS_PRAXEN_ENCODING_OPTION_H_
#define PRAXEN_TOOLS_PRAXEN_ENCODING_OPTION_H_

#include <CLI/CLI.hpp>

#include <string>

#include "praxen/core/ascii.h"
#include "tools/praxen/document_text.h"

namespace praxen::detail {

/// Adds "--encoding", which takes utf-8 and utf-16.
inline CLI::Option* AddEncoding(CLI::App& command, Encoding& encoding, const std::string& help) {
  const auto set = [&encoding](const std::string& name) {
    for (const Encoding each : {Encoding::Utf8, Encoding::Utf16}) {
      if (!EqualsIgnoringCase<char, char16_t>(name, NameOf(each))) continue;
      encoding = each;
      return;
    }
    throw CLI::ValidationError("--encoding", "is utf-8 or utf-16, not \"" + name + '"');
  };
  return command.add_option_function<std::string>("--encoding", set, help)->type_name("NAME");
}

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_ENCODING_OPTION_H_
