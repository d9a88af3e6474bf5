// Documents of any family: which root elements are read, and the work that commands do on files.
#ifndef PRAXEN_TOOLS_PRAXEN_DOCUMENTS_H_
#define PRAXEN_TOOLS_PRAXEN_DOCUMENTS_H_

#include <functional>
#include <string>
#include <vector>

#include "praxen/describe/description.h"

namespace praxen::detail {

/// The classes that the factory reads from documents, in the order of its operations.
const std::vector<const ClassDescription*>& DocumentClasses();

/// Reads a document of any of them; raises what reading raises.
///
/// A root element that two classes have is taken for the one that knows the most of its attributes
/// and children, and for the first of them when they know the same.
Ref<Object> ReadDocument(const Text& text);

/// Reads and decodes the files one after the other and calls `work` with each; prints what goes
/// wrong and goes on. Returns the exit code: 0 when `work` was true of all files, else 1.
int ForEachDocument(const std::vector<std::string>& files,
                    const std::function<bool(const std::string& file, const Text& text)>& work);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_DOCUMENTS_H_
