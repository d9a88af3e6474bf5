// Calls published members at random through dispatch, with random values, on a growing set of
// objects; what they have become must be written, read and written again alike, or fail cleanly.
#include <cstdlib>
#include <vector>

#include "fuzz/fuzz_input.h"
#include "praxen/core/library.h"
#include "praxen/platform/automation_values.h"
#include "praxen/praxen.h"

namespace {

using praxen::ComPointer;
using praxen::FuzzInput;
using praxen::Object;
using praxen::Ref;
using praxen::Variant;

constexpr size_t kMostObjects = 64;

IDispatch* AsDispatch(Object& object) {
  return reinterpret_cast<IDispatch*>(static_cast<praxen::Interface*>(&object));
}

Variant RandomValue(FuzzInput& input, const std::vector<Ref<Object>>& objects) {
  switch (input.Byte() % 7) {
    case 0:
      return Variant(input.ShortText().view());
    case 1:
      return Variant(static_cast<int32_t>(input.Byte()) - 4);
    case 2:
      return Variant(input.Byte() / 4.0);
    case 3:
      return Variant(input.Byte() % 2 == 0);
    case 4: {
      Variant missing;
      missing.vt = VT_ERROR;
      missing.scode = DISP_E_PARAMNOTFOUND;
      return missing;
    }
    case 5:
      return Variant();
    default:
      return Variant(objects.empty() ? nullptr : AsDispatch(*objects[input.Below(objects.size())]));
  }
}

// Keeps an object of ours that a call has returned.
void Keep(const Variant& result, std::vector<Ref<Object>>& objects) {
  if (result.vt != VT_DISPATCH || result.pdispVal == nullptr) return;
  if (objects.size() >= kMostObjects) return;
  objects.emplace_back(static_cast<Object*>(reinterpret_cast<praxen::Interface*>(result.pdispVal)));
}

void CallOne(FuzzInput& input, std::vector<Ref<Object>>& objects) {
  Object& object = *objects[input.Below(objects.size())];
  const auto& members = object.description().members;
  if (members.empty()) return;
  const praxen::Member& member = members[input.Below(members.size())];
  // A number of branches is the one argument that costs memory by its size alone.
  std::vector<Variant> arguments;
  const bool puts = !member.isMethod && input.Byte() % 2 == 0;
  const size_t wanted = puts ? 1 : member.parameters.size();
  const size_t count = input.Byte() % 8 == 0 ? input.Byte() % 4 : wanted;
  for (size_t i = 0; i < count; ++i) arguments.push_back(RandomValue(input, objects));
  DISPID named[] = {DISPID_PROPERTYPUT};
  DISPPARAMS parameters{arguments.data(), puts ? named : nullptr, static_cast<UINT>(count),
                        puts && count > 0 ? 1u : 0u};
  const WORD flags = puts ? (input.Byte() % 2 == 0 ? DISPATCH_PROPERTYPUT : DISPATCH_PROPERTYPUTREF)
                          : DISPATCH_METHOD | DISPATCH_PROPERTYGET;
  Variant result;
  EXCEPINFO exception{};
  UINT bad = 0;
  AsDispatch(object)->Invoke(member.id, GUID{}, 0, flags, &parameters, &result, &exception, &bad);
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrSource);
  Keep(result, objects);
}

void WriteReadWrite(Object& object) {
  auto* const serializable = dynamic_cast<praxen::SerializableObject*>(&object);
  if (serializable == nullptr || object.description().layout == nullptr) return;
  praxen::Text first, second;
  if (!praxen::Succeeds([&] { first = serializable->Serialize(); })) return;
  const auto rewrite = [&](const praxen::Text& text) {
    const Ref<Object> read = praxen::DeserializeObject(object.description(), text);
    return dynamic_cast<praxen::SerializableObject&>(*read).Serialize();
  };
  // Characters outside XML and markup of a client's own are refused when read.
  if (!praxen::Succeeds([&] { second = rewrite(first); })) return;
  praxen::Text third;
  if (!praxen::Succeeds([&] { third = rewrite(second); })) return;
  if (second != third) std::abort();
}

// Breaks the cycles that random assignments make, so that all objects die.
void TakeApart(const std::vector<Ref<Object>>& objects) {
  for (const Ref<Object>& object : objects) {
    for (const praxen::Member& member : object->description().members) {
      if (member.storage == nullptr || member.put == nullptr) continue;
      if (member.type.kind != praxen::ValueKind::Object) continue;
      Variant nothing(static_cast<IDispatch*>(nullptr));
      member.type.fromVariant(member.storage(*object), nothing);
    }
    const auto* const elements = object->elements();
    const praxen::Member* const remove = object->description().FindMember(u"Remove");
    while (elements != nullptr && remove != nullptr && !elements->empty()) {
      Variant position(int32_t{1});
      DISPPARAMS parameters{&position, nullptr, 1, 0};
      AsDispatch(*object)->Invoke(remove->id, GUID{}, 0, DISPATCH_METHOD, &parameters, nullptr,
                                  nullptr, nullptr);
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const int32_t before = praxen::ObjectCounter();
  {
    FuzzInput input(data, size);
    std::vector<Ref<Object>> objects;
    const auto classes = praxen::AllClasses();
    for (int i = 0; i < 3; ++i) {
      const praxen::ClassDescription& description = classes[input.Below(classes.size())]();
      if (description.create != nullptr) objects.push_back(description.create());
    }
    for (int calls = 0; calls < 200 && !input.empty() && !objects.empty(); ++calls) {
      CallOne(input, objects);
    }
    for (size_t i = 0; i < objects.size(); ++i) WriteReadWrite(*objects[i]);
    // Objects that only a list or a property holds are reached through those that hold them.
    TakeApart(objects);
  }
  praxen::SetIncludeCRLFInXML(true);
  if (praxen::ObjectCounter() < before) std::abort();
  return 0;
}
