// The private interface, and the confirmation beside it.
#include "praxen/describe/own_object.h"

#include <utility>

#include "praxen/automation/guid.h"
#include "praxen/core/thread_state.h"
#include "praxen/describe/description.h"

namespace praxen::describe {

namespace {

constexpr GUID kOwnObjectId = ToGuid(NamedIdentifier("interface own object"));

// The object that was asked last.
struct Confirmation final : KeptByThread {
  const Object* object = nullptr;
};

}  // namespace

Ref<Object> OwnObjectBehind(Interface* pointer) {
  auto& confirmation = ThreadState::Current().Keep<Confirmation>();
  confirmation.object = nullptr;
  void* answer = nullptr;
  const HRESULT result =
      reinterpret_cast<IUnknown*>(pointer)->QueryInterface(kOwnObjectId, &answer);
  const Interface* const confirmed = std::exchange(confirmation.object, nullptr);
  if (FAILED(result)) return {};
  if (answer == nullptr || answer != confirmed) {
    if (answer != nullptr) static_cast<IUnknown*>(answer)->Release();
    ThrowTypeMismatch();
  }
  const Ref<Object> own = static_cast<Object*>(static_cast<Interface*>(answer));
  own->Release();
  return own;
}

bool ConfirmOwnObject(const Object& object, REFIID iid) {
  if (&iid != &kOwnObjectId) return false;
  ThreadState::Current().Keep<Confirmation>().object = &object;
  return true;
}

}  // namespace praxen::describe
