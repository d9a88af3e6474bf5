// Changes documents of the library in their elements, attributes and values; what is still read
// must survive being written and read.
#include <string>

#include "fuzz/promises.h"
#include "fuzz/xml_mutation.h"
#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"
#include "praxen/factory/deserialization.h"

extern "C" size_t LLVMFuzzerMutate(uint8_t* data, size_t size, size_t most);

namespace {

using praxen::Object;
using praxen::Ref;
using praxen::Text;
using praxen::detail::ClassDescription;

// The name of the first element, without a prefix.
std::u16string RootName(std::string_view xml) {
  const praxen::detail::Markup markup = praxen::detail::FindMarkup(xml);
  if (markup.elements.empty()) return {};
  const std::string_view name = markup.elements.front().name.In(xml);
  return praxen::FromUtf8(name.substr(name.find(':') + 1));
}

void ReadAs(const ClassDescription& description, const Text& document) {
  Ref<Object> read;
  praxen::Losses losses;
  const auto reading = [&] {
    read = praxen::detail::DeserializeObject(description, document, &losses);
  };
  if (praxen::detail::Succeeds(praxen::detail::ReadingErrors(), reading)) {
    praxen::detail::HoldRoundTrip(*read, praxen::detail::Values::Carried);
  }
}

// A name may be that of two classes, and a document of no class is refused by all alike.
void Read(std::string_view xml) {
  const Text document = praxen::FromUtf8(xml);
  const std::u16string name = RootName(xml);
  for (const praxen::detail::ClassDescription& description : praxen::detail::AllClasses()) {
    if (!praxen::describe::IsDocument(description)) continue;
    if (description.layout().element == name) ReadAs(description, document);
  }
}

size_t Store(const std::string& changed, uint8_t* data, size_t most) {
  if (changed.size() > most) return 0;
  changed.copy(reinterpret_cast<char*>(data), changed.size());
  return changed.size();
}

std::string_view ViewOf(const uint8_t* data, size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t most, unsigned seed) {
  praxen::detail::Random random(seed);
  const std::string changed =
      random.OneIn(8) ? std::string() : praxen::detail::Mutated(ViewOf(data, size), random);
  const size_t stored = Store(changed, data, most);
  return stored != 0 ? stored : LLVMFuzzerMutate(data, size, most);
}

extern "C" size_t LLVMFuzzerCustomCrossOver(const uint8_t* first, size_t firstSize,
                                            const uint8_t* second, size_t secondSize, uint8_t* out,
                                            size_t most, unsigned seed) {
  praxen::detail::Random random(seed);
  return Store(
      praxen::detail::Spliced(ViewOf(first, firstSize), ViewOf(second, secondSize), random), out,
      most);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const praxen::detail::NothingStays counted;
  Read(ViewOf(data, size));
  return 0;
}
