// Changes documents of the library in their elements, attributes and values; what is still read
// must survive being written and read.
#include "fuzz/document_mutator.h"
#include "fuzz/promises.h"
#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"
#include "praxen/factory/deserialization.h"
#include "tests/support/xml_mutation.h"

namespace {

using praxen::Object;
using praxen::Ref;
using praxen::Text;
using praxen::detail::ClassDescription;

void ReadAs(const ClassDescription& description, const Text& document) {
  Ref<Object> read;
  praxen::Losses losses;
  const praxen::detail::InProportion measured(document.size());
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
  const std::u16string name = praxen::detail::RootName(xml);
  for (const praxen::detail::ClassDescription& description : praxen::detail::AllClasses()) {
    if (!praxen::describe::IsDocument(description)) continue;
    if (description.layout().element == name) ReadAs(description, document);
  }
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
