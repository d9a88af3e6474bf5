// Changes documents of the library as fuzz_documents does, and single characters; the direct way of
// reading gives up, or does what the reference way does.
#include <optional>

#include "fuzz/document_mutator.h"
#include "fuzz/promises.h"
#include "tests/support/both_ways.h"
#include "tests/support/xml_mutation.h"

namespace {

void Read(std::string_view xml) {
  praxen::detail::Random random(static_cast<unsigned>(std::hash<std::string_view>()(xml)));
  std::u16string text = praxen::FromUtf8(xml);
  if (random.OneIn(4)) text = praxen::detail::Spoiled(std::move(text), random);
  std::optional<praxen::detail::DecimalComma> comma;
  if (random.OneIn(4)) comma.emplace();
  const praxen::detail::InProportion measured(text.size());
  const praxen::detail::BothWays ways = praxen::detail::ReadBothWays(text);
  if (!ways.difference.empty()) praxen::detail::Broken(ways.difference, text);
}

}  // namespace

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t most, unsigned seed) {
  return praxen::detail::MutateDocument(data, size, most, seed);
}

extern "C" size_t LLVMFuzzerCustomCrossOver(const uint8_t* first, size_t firstSize,
                                            const uint8_t* second, size_t secondSize, uint8_t* out,
                                            size_t most, unsigned seed) {
  return praxen::detail::CrossDocuments(praxen::detail::ViewOf(first, firstSize),
                                        praxen::detail::ViewOf(second, secondSize), out, most,
                                        seed);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const praxen::detail::NothingStays counted;
  Read(praxen::detail::ViewOf(data, size));
  return 0;
}
