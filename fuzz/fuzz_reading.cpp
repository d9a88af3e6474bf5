// Feeds texts to every reading operation: what is read must be written and read again alike.
#include <cstdlib>

#include "fuzz/fuzz_input.h"
#include "praxen/core/library.h"
#include "praxen/praxen.h"

namespace {

using praxen::ClassDescription;
using praxen::Object;
using praxen::Ref;
using praxen::Text;

Text Write(Object& object) { return dynamic_cast<praxen::SerializableObject&>(object).Serialize(); }

void ReadAs(const ClassDescription& description, const Text& text) {
  Ref<Object> read;
  if (!praxen::Succeeds([&] { read = praxen::DeserializeObject(description, text); })) return;
  Text first, second;
  // What was read may lack what writing requires, or hold what only a client's own markup can.
  if (!praxen::Succeeds([&] { first = Write(*read); })) return;
  if (!praxen::Succeeds([&] { second = Write(*praxen::DeserializeObject(description, first)); })) {
    return;
  }
  Text third = Write(*praxen::DeserializeObject(description, second));
  if (second != third) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const int32_t before = praxen::ObjectCounter();
  const Text text = praxen::FromUtf8({reinterpret_cast<const char*>(data), size});
  for (const auto describe : praxen::AllClasses()) {
    const ClassDescription& description = describe();
    if (description.create == nullptr || description.FindMember(u"Serialize") == nullptr) continue;
    // Of the classes, those whose element the text names.
    if (text.view().find(description.layout().element) != std::u16string_view::npos) {
      ReadAs(description, text);
    }
  }
  praxen::FuzzInput input(data, size);
  praxen::Succeeds([&] { praxen::ObjectFactory::DeserializeVariable(input.RestAsText()); });
  if (praxen::ObjectCounter() != before) std::abort();
  return 0;
}
