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
/// A type with instances that are connected and placed.
Ref<ControlModuleType> BuildModules(size_t count);
/// Code blocks with sequential function charts, whose selections are nested.
Ref<Program> BuildCharts(size_t count);
/// Function blocks with long descriptions and comments in the code, in several scripts and with
/// characters that markup escapes.
Ref<Program> BuildTexts(size_t count);
/// Code blocks with instruction lists, of so many rows together.
Ref<Program> BuildInstructions(size_t rows);
/// A program as people edit one: indented, with quotes of both kinds, comments between the elements
/// of lists, character references, CDATA sections and CR LF line ends.
Text BuildEdited(size_t variables);
/// Programs of about 1,000 characters each.
std::vector<Text> BuildSmallDocuments(size_t count);

/// A name with a number of at least five digits.
Text Numbered(std::u16string_view name, size_t number);

}  // namespace praxen::detail::bench

#endif  // PRAXEN_BENCH_DOCUMENTS_H_
