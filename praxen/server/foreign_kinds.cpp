// Adapters through which the model holds clients' own implementations of the kinds.
#include <string_view>

#include "praxen/automation/values.h"
#include "praxen/core/error.h"
#include "praxen/describe/foreign_object.h"
#include "praxen/describe/identifiers.h"
#include "praxen/model/application/i_va_protocol.h"
#include "praxen/model/messages/i_msg.h"
#include "praxen/model/pou/code_block.h"
#include "praxen/model/pou/i_control_module.h"
#include "praxen/model/pou/sfc_element.h"

namespace praxen::detail {

namespace {

constexpr size_t kDispatchSlots = 7;

struct Slots {
  size_t get, put;
};

// Where the functions of a member stand in the table of its interface.
Slots SlotsOf(const ClassDescription& kind, std::string_view name) {
  size_t slot = kDispatchSlots;
  for (const Member& member : kind.members) {
    if (member.name == name) return member.putFirst ? Slots{slot + 1, slot} : Slots{slot, slot + 1};
    slot += member.put == nullptr ? 1 : 2;
  }
  throw InvalidArgument();
}

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

// What the adapters of all kinds have in common.
template <class Base>
class Adapter : public Base, public ForeignObject {
 public:
  explicit Adapter(ComPointer<IUnknown> kind)
      : kind_(std::move(kind)), dispatch_(kind_.As<IDispatch>(IID_IDispatch)) {}

  Interface* kindOfClient() const noexcept final {
    return reinterpret_cast<Interface*>(kind_.Get());
  }
  // The kind interface is an IDispatch, too, for an object that has no other.
  Interface* dispatchOfClient() const noexcept final {
    return dispatch_ ? reinterpret_cast<Interface*>(dispatch_.Get()) : kindOfClient();
  }

 protected:
  template <auto Query>
  bool Ask() const {
    static const size_t slot = SlotsOf(Describe<Base>(), EntityName<Query>()).get;
    VARIANT_BOOL answer = VARIANT_FALSE;
    Require(Function<HRESULT(STDMETHODCALLTYPE*)(Interface*, VARIANT_BOOL*)>(slot)(kindOfClient(),
                                                                                   &answer));
    return answer != VARIANT_FALSE;
  }
  template <auto Property>
  Text GetText() const {
    static const size_t slot = SlotsOf(Describe<Base>(), EntityName<Property>()).get;
    BStr text;
    Require(Function<HRESULT(STDMETHODCALLTYPE*)(Interface*, BSTR*)>(slot)(kindOfClient(),
                                                                           text.Receive()));
    return text.View();
  }
  template <auto Property>
  void PutText(const Text& text) {
    static const size_t slot = SlotsOf(Describe<Base>(), EntityName<Property>()).put;
    const BStr value(text.view());
    Require(
        Function<HRESULT(STDMETHODCALLTYPE*)(Interface*, BSTR)>(slot)(kindOfClient(), value.Get()));
  }

 private:
  template <class Type>
  Type Function(size_t slot) const {
    return reinterpret_cast<Type>(const_cast<void*>(kindOfClient()->table[slot]));
  }

  const ComPointer<IUnknown> kind_;
  const ComPointer<IDispatch> dispatch_;
};

class ForeignCodeBlock final : public Adapter<ICodeBlock> {
 public:
  using Adapter::Adapter;

  Text Name() const override { return GetText<&ICodeBlock::Name>(); }
  void SetName(const Text& name) override { PutText<&ICodeBlock::Name>(name); }
  bool IsSTCodeBlock() const override { return Ask<&ICodeBlock::IsSTCodeBlock>(); }
  bool IsSFCCodeBlock() const override { return Ask<&ICodeBlock::IsSFCCodeBlock>(); }
  bool IsILCodeBlock() const override { return Ask<&ICodeBlock::IsILCodeBlock>(); }
  bool IsFBDCodeBlock() const override { return Ask<&ICodeBlock::IsFBDCodeBlock>(); }
  bool IsLDCodeBlock() const override { return Ask<&ICodeBlock::IsLDCodeBlock>(); }
  bool IsFDCodeBlock() const override { return Ask<&ICodeBlock::IsFDCodeBlock>(); }
};

class ForeignControlModule final : public Adapter<IControlModule> {
 public:
  using Adapter::Adapter;

  Text Name() const override { return GetText<&IControlModule::Name>(); }
  void SetName(const Text& name) override { PutText<&IControlModule::Name>(name); }
  bool IsControlModule() const override { return Ask<&IControlModule::IsControlModule>(); }
  bool IsSingleControlModule() const override {
    return Ask<&IControlModule::IsSingleControlModule>();
  }
};

class ForeignSFCElement final : public Adapter<ISFCElement> {
 public:
  using Adapter::Adapter;

  bool IsSFCStep() const override { return Ask<&ISFCElement::IsSFCStep>(); }
  bool IsSFCTransition() const override { return Ask<&ISFCElement::IsSFCTransition>(); }
  bool IsSFCSubSequence() const override { return Ask<&ISFCElement::IsSFCSubSequence>(); }
  bool IsSFCSelection() const override { return Ask<&ISFCElement::IsSFCSelection>(); }
  bool IsSFCSimultaneous() const override { return Ask<&ISFCElement::IsSFCSimultaneous>(); }
};

class ForeignMessage final : public Adapter<IMsg> {
 public:
  using Adapter::Adapter;

  Text Message() const override { return GetText<&IMsg::Message>(); }
  void SetMessage(const Text& message) override { PutText<&IMsg::Message>(message); }
  bool IsErrorMsg() const override { return Ask<&IMsg::IsErrorMsg>(); }
  bool IsWarningMsg() const override { return Ask<&IMsg::IsWarningMsg>(); }
  bool IsInfoMsg() const override { return Ask<&IMsg::IsInfoMsg>(); }
  bool IsFindMsg() const override { return Ask<&IMsg::IsFindMsg>(); }
};

class ForeignProtocol final : public Adapter<IVAProtocol> {
 public:
  using Adapter::Adapter;

  Text Name() const override { return GetText<&IVAProtocol::Name>(); }
  void SetName(const Text& name) override { PutText<&IVAProtocol::Name>(name); }
  bool IsVANamedProtocol() const override { return Ask<&IVAProtocol::IsVANamedProtocol>(); }
  bool IsVAAddressedProtocol() const override { return Ask<&IVAProtocol::IsVAAddressedProtocol>(); }
};

// An empty reference when the object does not implement the kind.
template <class Made, class Kind>
Ref<Object> Hold(Interface* foreign) {
  void* found = nullptr;
  const GUID id = InterfaceId(Describe<Kind>());
  auto* const unknown = reinterpret_cast<IUnknown*>(foreign);
  if (FAILED(unknown->QueryInterface(id, &found)) || found == nullptr) return {};
  return new Made(ComPointer<IUnknown>::Attach(static_cast<IUnknown*>(found)));
}

}  // namespace
}  // namespace praxen::detail

namespace praxen {

using namespace detail;

Ref<Object> ICodeBlock::Adapt(Interface* foreign) {
  return Hold<ForeignCodeBlock, ICodeBlock>(foreign);
}

Ref<Object> IControlModule::Adapt(Interface* foreign) {
  return Hold<ForeignControlModule, IControlModule>(foreign);
}

Ref<Object> ISFCElement::Adapt(Interface* foreign) {
  return Hold<ForeignSFCElement, ISFCElement>(foreign);
}

Ref<Object> IMsg::Adapt(Interface* foreign) { return Hold<ForeignMessage, IMsg>(foreign); }

Ref<Object> IVAProtocol::Adapt(Interface* foreign) {
  return Hold<ForeignProtocol, IVAProtocol>(foreign);
}

}  // namespace praxen
