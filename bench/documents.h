// The documents that are written and read, built with the C++ interface.
#ifndef PRAXEN_BENCH_DOCUMENTS_H_
#define PRAXEN_BENCH_DOCUMENTS_H_

#include <cstddef>
#include <vector>

#include "praxen/praxen.h"

namespace praxen::detail::bench {

/// Three variables for each function block, and three code blocks for every twenty.
Ref<Program> BuildProgram(size_t functionBlocks);
Ref<Program> BuildVariables(size_t count);
Ref<HWUnit> BuildHardware(size_t channels);
Ref<MessageBucket> BuildMessages(size_t count);
Ref<ProjectConstants> BuildConstants(size_t count);
/// Programs of about 1,000 characters each.
std::vector<Text> BuildSmallDocuments(size_t count);

/// A name with a number of at least five digits.
Text Numbered(std::u16string_view name, size_t number);

}  // namespace praxen::detail::bench

#endif  // PRAXEN_BENCH_DOCUMENTS_H_
