// Feeds any UTF-16 text, half characters included, to one of the factory's reading operations,
// which the first byte chooses; what is read must survive being written and read.
#include <vector>

#include "fuzz/input.h"
#include "fuzz/promises.h"
#include "praxen/automation/values.h"
#include "praxen/describe/value_type.h"
#include "praxen/factory/library.h"
#include "praxen/praxen.h"

namespace {

using praxen::Variant;
using praxen::detail::Member;

const std::vector<const Member*>& ReadingOperations() {
  static const std::vector<const Member*> operations = [] {
    std::vector<const Member*> found;
    for (const Member& member : praxen::detail::Describe<praxen::ObjectFactory>().members) {
      if (member.name.starts_with("Deserialize")) found.push_back(&member);
    }
    return found;
  }();
  return operations;
}

// As automation clients may pass it: of any number of bytes.
Variant ToVariant(const praxen::detail::FuzzInput& input) {
  Variant text;
  text.bstrVal = SysAllocStringByteLen(reinterpret_cast<const char*>(input.data()),
                                       static_cast<UINT>(input.size()));
  text.vt = VT_BSTR;
  return text;
}

void Read(praxen::detail::FuzzInput input) {
  const auto& operations = ReadingOperations();
  const Member& operation = *operations[input.Below(operations.size())];
  const Variant text = ToVariant(input);
  const VARIANT* const argument = &text;
  Variant result;
  const praxen::detail::InProportion measured(input.size());
  const bool isRead = praxen::detail::Succeeds(praxen::detail::ReadingErrors(), [&] {
    operation.invokeGet(praxen::detail::SharedFactory(), &argument, result);
  });
  if (!isRead) return;
  praxen::detail::HoldRoundTrip(*praxen::detail::ObjectFromVariant(result, nullptr),
                                praxen::detail::Values::Carried);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const praxen::detail::NothingStays counted;
  Read({data, size});
  return 0;
}
