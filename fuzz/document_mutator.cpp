// Changes to elements, attributes and values, and now and then to bytes.
#include "fuzz/document_mutator.h"

#include <string>

#include "tests/support/xml_mutation.h"

extern "C" size_t LLVMFuzzerMutate(uint8_t* data, size_t size, size_t most);

namespace praxen::detail {

namespace {

size_t Store(const std::string& changed, uint8_t* data, size_t most) {
  if (changed.size() > most) return 0;
  changed.copy(reinterpret_cast<char*>(data), changed.size());
  return changed.size();
}

}  // namespace

size_t MutateDocument(uint8_t* data, size_t size, size_t most, unsigned seed) {
  Random random(seed);
  const std::string changed = random.OneIn(8) ? std::string() : Mutated(ViewOf(data, size), random);
  const size_t stored = Store(changed, data, most);
  return stored != 0 ? stored : LLVMFuzzerMutate(data, size, most);
}

size_t CrossDocuments(std::string_view first, std::string_view second, uint8_t* out, size_t most,
                      unsigned seed) {
  Random random(seed);
  return Store(Spliced(first, second, random), out, most);
}

}  // namespace praxen::detail
