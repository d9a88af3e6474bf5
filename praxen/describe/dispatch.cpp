// Identity, interfaces and late-bound calls of every object, from its description.
#include "praxen/describe/dispatch.h"

#include <algorithm>
#include <vector>

#include "praxen/automation/guard.h"
#include "praxen/automation/values.h"
#include "praxen/core/ascii.h"
#include "praxen/core/error.h"
#include "praxen/describe/identifiers.h"
#include "praxen/describe/own_object.h"
#include "praxen/describe/tear_off.h"

namespace praxen::detail::dispatch {

namespace {

constexpr WORD kGetting = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
constexpr WORD kPutting = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;

// Empty, which is nobody's name, for a null pointer.
std::u16string_view ViewOfName(LPOLESTR name) {
  if (name == nullptr) return {};
  return reinterpret_cast<const char16_t*>(name);
}

DISPID ParameterId(const Member& member, std::u16string_view name) {
  const auto isNamed = [&](const MemberParameter& parameter) {
    return EqualsIgnoringCase(name, parameter.name);
  };
  const auto found = std::ranges::find_if(member.parameters, isNamed);
  return found == member.parameters.end() ? DISPID_UNKNOWN
                                          : static_cast<DISPID>(found - member.parameters.begin());
}

using Arguments = std::vector<const VARIANT*>;

// The arguments in the order of the parameters: the named ones, which come first, go to their
// places, and the others come last one first.
Arguments Arrange(const Member& member, const DISPPARAMS& parameters) {
  if (parameters.cArgs > member.parameters.size()) {
    throw ArgumentError{DISP_E_BADPARAMCOUNT, nullptr};
  }
  Arguments arranged(member.parameters.size());
  for (UINT i = 0; i < parameters.cArgs; ++i) {
    const VARIANT* const argument = &parameters.rgvarg[i];
    // A negative identifier is none of a parameter and becomes too large.
    const size_t place = i < parameters.cNamedArgs
                             ? static_cast<size_t>(parameters.rgdispidNamedArgs[i])
                             : parameters.cArgs - 1 - i;
    if (place >= arranged.size() || arranged[place] != nullptr) {
      throw ArgumentError{DISP_E_PARAMNOTFOUND, argument};
    }
    arranged[place] = argument;
  }
  if (std::ranges::find(arranged, nullptr) != arranged.end()) {
    throw ArgumentError{DISP_E_PARAMNOTOPTIONAL, nullptr};
  }
  return arranged;
}

void Get(Object& object, const Member& member, const Arguments& arguments, VARIANT& result) {
  if (member.storage != nullptr) {
    member.type.toVariant(member.storage(object), result);
  } else {
    member.invokeGet(object, arguments.data(), result);
  }
}

void Call(Object& object, const Member& member, const DISPPARAMS& parameters, VARIANT* result) {
  const Arguments arguments = Arrange(member, parameters);
  Variant value;
  Get(object, member, arguments, value);
  if (result != nullptr) *result = value.Detach();
}

// The one value of an assignment, which may be named as such.
const VARIANT& AssignedValue(const DISPPARAMS& parameters) {
  if (parameters.cArgs != 1) throw ArgumentError{DISP_E_BADPARAMCOUNT, nullptr};
  if (parameters.cNamedArgs > 0 && parameters.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT) {
    throw ArgumentError{DISP_E_PARAMNOTFOUND, &parameters.rgvarg[0]};
  }
  return parameters.rgvarg[0];
}

// Clients differ in how they assign an object, by value or by reference; nothing else is assigned
// by reference.
void Put(Object& object, const Member& member, WORD flags, const DISPPARAMS& parameters) {
  const bool byValue = (flags & DISPATCH_PROPERTYPUT) != 0;
  if (member.put == nullptr || (!byValue && member.type.kind != ValueKind::Object)) {
    throw ArgumentError{DISP_E_MEMBERNOTFOUND, nullptr};
  }
  const VARIANT* const value = &AssignedValue(parameters);
  if (member.storage != nullptr) {
    member.type.fromVariant(member.storage(object), *value);
  } else {
    Variant none;
    member.invokePut(object, &value, none);
  }
}

// Whether there are arguments for the default member of the object that the member returns, as in
// `program.Variables(1)`. A method does its work before it has a result, too early to find that the
// arguments do not suit the result.
bool IndexesResult(const Member& member, WORD flags, const DISPPARAMS& parameters) {
  const UINT assigned = (flags & kGetting) != 0 ? 0 : 1;
  return parameters.cArgs > assigned && !member.isMethod && member.parameters.empty() &&
         member.type.kind == ValueKind::Object;
}

struct Invocation {
  WORD flags;
  DISPPARAMS& parameters;
  VARIANT* result;
  EXCEPINFO* exception;
  UINT* badArgument;
};

HRESULT CallDefault(Object& object, const Member& member, const Invocation& call) {
  Variant owner;
  Get(object, member, {}, owner);
  if (owner.pdispVal == nullptr) ThrowMissingObject();
  return owner.pdispVal->Invoke(kDefaultMemberId, GUID_NULL, 0, call.flags, &call.parameters,
                                call.result, call.exception, call.badArgument);
}

HRESULT InvokeMember(Object& object, DISPID id, const Invocation& call) {
  const Member* const member = object.description().FindMember(id);
  if (member == nullptr) throw ArgumentError{DISP_E_MEMBERNOTFOUND, nullptr};
  if (IndexesResult(*member, call.flags, call.parameters)) {
    return CallDefault(object, *member, call);
  }
  if ((call.flags & kGetting) != 0) {
    Call(object, *member, call.parameters, call.result);
  } else {
    Put(object, *member, call.flags, call.parameters);
  }
  return S_OK;
}

bool IsSound(WORD flags, const DISPPARAMS* parameters) {
  return (flags & (kGetting | kPutting)) != 0 && parameters != nullptr &&
         (parameters->cArgs == 0 || parameters->rgvarg != nullptr) &&
         (parameters->cNamedArgs == 0 || parameters->rgdispidNamedArgs != nullptr) &&
         parameters->cNamedArgs <= parameters->cArgs;
}

void TellBadArgument(const DISPPARAMS& parameters, const VARIANT* argument, UINT* badArgument) {
  if (badArgument == nullptr || argument == nullptr) return;
  *badArgument = static_cast<UINT>(argument - parameters.rgvarg);
}

BSTR ToBstr(const Text& text) {
  if (text.empty()) return nullptr;
  return SysAllocStringLen(reinterpret_cast<const OLECHAR*>(text.data()),
                           static_cast<UINT>(text.size()));
}

HRESULT Fill(EXCEPINFO* exception, const abi::Failure& failure) {
  if (exception == nullptr) return failure.code;
  *exception = {};
  exception->bstrSource = ToBstr(failure.source);
  exception->bstrDescription = ToBstr(failure.description);
  exception->scode = failure.code;
  return DISP_E_EXCEPTION;
}

// Null for an interface that the object itself does not have.
Interface* OwnInterface(Object& object, REFIID iid) {
  const ClassDescription& description = object.description();
  if (iid == IID_IUnknown || iid == IID_IDispatch || ConfirmOwnObject(object, iid)) return &object;
  if (!description.isKind && iid == InterfaceId(description)) return &object;
  Interface* const kind = object.kindInterface();
  if (kind == nullptr) return nullptr;
  const auto& kindDescription = *static_cast<const ClassDescription*>(kind->table[-1]);
  return iid == InterfaceId(kindDescription) ? kind : nullptr;
}

}  // namespace

HRESULT QueryInterface(Object& object, REFIID iid, void** out) noexcept {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  return Guarded([&]() -> HRESULT {
    Interface* const own = OwnInterface(object, iid);
    if (own == nullptr) return MakeTearOff(object, iid, out);
    object.AddRef();
    *out = own;
    return S_OK;
  });
}

HRESULT GetIDsOfNames(Object& object, LPOLESTR* names, UINT count, DISPID* ids) noexcept {
  if (names == nullptr || ids == nullptr) return E_POINTER;
  if (count == 0) return E_INVALIDARG;
  std::fill_n(ids, count, DISPID_UNKNOWN);
  const Member* const member = object.description().FindMember(ViewOfName(names[0]));
  if (member == nullptr) return DISP_E_UNKNOWNNAME;
  ids[0] = member->id;
  HRESULT result = S_OK;
  for (UINT i = 1; i < count; ++i) {
    ids[i] = ParameterId(*member, ViewOfName(names[i]));
    if (ids[i] == DISPID_UNKNOWN) result = DISP_E_UNKNOWNNAME;
  }
  return result;
}

// Errors of the call itself are returned as such; those of the member that was called are told in
// `exception`. Both are left in the thread's error information.
HRESULT Invoke(Object& object, DISPID id, WORD flags, DISPPARAMS* parameters, VARIANT* result,
               EXCEPINFO* exception, UINT* badArgument) noexcept {
  if (result != nullptr) VariantInit(result);
  if (!IsSound(flags, parameters)) return E_INVALIDARG;
  // The member may drop the last other reference to the object.
  const Ref<Object> kept(&object);
  try {
    return InvokeMember(object, id, {flags, *parameters, result, exception, badArgument});
  } catch (const ArgumentError& error) {
    TellBadArgument(*parameters, error.argument, badArgument);
    return abi::ReportFailure().code;
  } catch (...) {
    return Fill(exception, abi::ReportFailure());
  }
}

}  // namespace praxen::detail::dispatch
