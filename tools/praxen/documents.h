// Documents in files, and the work that commands do on them.
#ifndef PRAXEN_TOOLS_PRAXEN_DOCUMENTS_H_
#define PRAXEN_TOOLS_PRAXEN_DOCUMENTS_H_

#include <functional>
#include <string>
#include <vector>

#include "praxen/core/text.h"

namespace praxen::detail {

/// Reads and decodes the files one after the other and calls `work` with each; prints what goes
/// wrong and goes on. Returns the exit code: 0 when `work` was true of all files, else 1.
int ForEachDocument(const std::vector<std::string>& files,
                    const std::function<bool(const std::string& file, const Text& text)>& work);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_DOCUMENTS_H_
