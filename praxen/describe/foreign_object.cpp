// Calls to objects that are implemented outside the library.
#include "praxen/describe/foreign_object.h"

#include <algorithm>
#include <utility>

#include "praxen/core/error.h"
#include "praxen/describe/dispatch.h"
#include "praxen/describe/identifiers.h"

namespace praxen::describe {

namespace {

// Raises the error that the client's object reported.
void Require(HRESULT result) {
  if (SUCCEEDED(result)) return;
  BStr source, description;
  ComPointer<IErrorInfo> info;
  if (GetErrorInfo(0, info.Receive()) == S_OK) {
    info->GetSource(source.Receive());
    info->GetDescription(description.Receive());
  }
  throw Error(static_cast<uint32_t>(result), source.View(), description.View());
}

}  // namespace

ForeignObject::ForeignObject(const ClassDescription& kind, ComPointer<IUnknown> client)
    : kind_(kind), client_(std::move(client)), dispatch_(client_.As<IDispatch>(IID_IDispatch)) {}

Interface* ForeignObject::kindOfClient() const noexcept {
  return reinterpret_cast<Interface*>(client_.Get());
}

// The kind interface is an IDispatch, too, for an object that has no other.
Interface* ForeignObject::dispatchOfClient() const noexcept {
  return dispatch_ ? reinterpret_cast<Interface*>(dispatch_.Get()) : kindOfClient();
}

// Where the functions of the first member that matches stand in the table of the kind's interface.
template <class Matches>
ForeignObject::Slots ForeignObject::SlotsOf(Matches matches) const {
  size_t slot = kind_.kindHead.size();
  for (const Member& member : kind_.members) {
    if (matches(member)) return member.putFirst ? Slots{slot + 1, slot} : Slots{slot, slot + 1};
    slot += member.put == nullptr ? 1 : 2;
  }
  throw InvalidArgument();
}

ForeignObject::Slots ForeignObject::SlotsOfText() const {
  return SlotsOf([](const Member& member) { return member.put != nullptr; });
}

template <class... Arguments>
void ForeignObject::Call(size_t slot, Arguments... arguments) const {
  using Function = HRESULT(STDMETHODCALLTYPE*)(Interface*, Arguments...);
  // The answer may be the end of this adapter.
  const ComPointer<IUnknown> kept = client_;
  Interface* const client = kindOfClient();
  Require(reinterpret_cast<Function>(const_cast<void*>(client->table[slot]))(client, arguments...));
}

bool ForeignObject::Ask(std::string_view question) const {
  VARIANT_BOOL answer = VARIANT_FALSE;
  Call(SlotsOf([&](const Member& member) { return member.name == question; }).get, &answer);
  return answer != VARIANT_FALSE;
}

Text ForeignObject::GetText() const {
  BStr text;
  Call(SlotsOfText().get, text.Receive());
  return text.View();
}

void ForeignObject::PutText(const Text& text) const {
  const BStr value(text.view());
  Call(SlotsOfText().put, value.Get());
}

ComPointer<IUnknown> KindOfForeign(const ClassDescription& kind, Interface* foreign) {
  void* found = nullptr;
  const GUID id = InterfaceId(kind);
  if (FAILED(reinterpret_cast<IUnknown*>(foreign)->QueryInterface(id, &found))) return {};
  return ComPointer<IUnknown>::Attach(static_cast<IUnknown*>(found));
}

}  // namespace praxen::describe
