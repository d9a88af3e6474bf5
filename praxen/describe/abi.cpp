// The boundary of the interface tables: values, objects and exceptions that cross it.
#include <cstring>

#include "praxen/automation/guard.h"
#include "praxen/automation/values.h"
#include "praxen/core/error.h"
#include "praxen/describe/description.h"
#include "praxen/describe/foreign_object.h"
#include "praxen/describe/own_object.h"
#include "praxen/describe/slots.h"

namespace praxen::detail::abi {

// They are different types where the system has its own; NOLINTNEXTLINE
static_assert(sizeof(Variant) == sizeof(VARIANT) && alignof(Variant) == alignof(VARIANT));

namespace {

Text DescriptionOf(HRESULT code) {
  switch (code) {
    case DISP_E_TYPEMISMATCH:
      return u"Type mismatch"_text;
    case DISP_E_OVERFLOW:
      return u"Overflow"_text;
    case DISP_E_PARAMNOTOPTIONAL:
      return u"Argument not optional"_text;
    case DISP_E_PARAMNOTFOUND:
      return u"Named argument not found"_text;
    case DISP_E_BADPARAMCOUNT:
      return u"Wrong number of arguments"_text;
    case DISP_E_MEMBERNOTFOUND:
      return u"The object has no such property or method"_text;
    case E_POINTER:
      return u"Null pointer"_text;
    case E_OUTOFMEMORY:
      return u"Out of memory"_text;
    case E_UNEXPECTED:
      return u"Unexpected failure"_text;
    default:
      return u"Invalid argument"_text;
  }
}

Failure FailureInFlight() noexcept {
  Result code;
  try {
    throw;
  } catch (const Error& error) {
    return {static_cast<Result>(error.number()), error.source(), error.description()};
  } catch (const ArgumentError& error) {
    code = error.code;
  } catch (...) {
    code = ResultInFlight();
  }
  return {code, {}, DescriptionOf(code)};
}

LPOLESTR ToCharacters(const Text& text) {
  return reinterpret_cast<LPOLESTR>(const_cast<char16_t*>(text.c_str()));
}

void SetErrorInformation(const Failure& failure) noexcept {
  // What an earlier failure left must not pass for this one's.
  SetErrorInfo(0, nullptr);
  ComPointer<ICreateErrorInfo> create;
  if (FAILED(CreateErrorInfo(create.Receive()))) return;
  create->SetDescription(ToCharacters(failure.description));
  create->SetSource(ToCharacters(failure.source));
  if (const auto info = create.As<IErrorInfo>(IID_IErrorInfo)) SetErrorInfo(0, info.Get());
}

// Null for the objects of the library.
const ForeignObject* AsForeign(const Object* object) {
  if (object == nullptr || !object->description().isKind) return nullptr;
  return dynamic_cast<const ForeignObject*>(object);
}

// Counts through the interface itself, which may be a client's.
void HandOut(Interface* pointer, Interface** out) {
  if (pointer != nullptr) reinterpret_cast<IUnknown*>(pointer)->AddRef();
  *out = pointer;
}

}  // namespace

Failure ReportFailure() noexcept {
  Failure failure = FailureInFlight();
  SetErrorInformation(failure);
  return failure;
}

void ThrowNullPointer() { throw ArgumentError{E_POINTER, nullptr}; }

Text ToText(const char16_t* string) {
  return ViewOf(reinterpret_cast<BSTR>(const_cast<char16_t*>(string)));
}

AnyValue ToAny(const Variant& variant) {
  VARIANT value;
  std::memcpy(&value, &variant, sizeof value);
  AnyValue any;
  detail::AnyFromVariant(&any, value);
  return any;
}

Ref<Object> ToObject(Interface* object, Ref<Object> (*adapt)(Interface*)) {
  if (object == nullptr) return {};
  if (Ref<Object> own = OwnObjectBehind(object)) return own;
  Ref<Object> adapted = adapt == nullptr ? Ref<Object>() : adapt(object);
  if (!adapted) ThrowTypeMismatch();
  return adapted;
}

void Store(const Text& value, String* out) {
  *out = reinterpret_cast<String>(AllocateBstr(value.view()));
}

void Store(bool value, Boolean* out) { *out = value ? VARIANT_TRUE : VARIANT_FALSE; }

void Store(int32_t value, int32_t* out) { *out = value; }

void Store(double value, double* out) { *out = value; }

void StoreObject(Object* object, Interface** out) {
  const ForeignObject* const foreign = AsForeign(object);
  HandOut(foreign == nullptr ? object : foreign->dispatchOfClient(), out);
}

void StoreKind(Object* object, const KindInterface* kind, Interface** out) {
  const ForeignObject* const foreign = AsForeign(object);
  HandOut(foreign == nullptr ? const_cast<KindInterface*>(kind) : foreign->kindOfClient(), out);
}

}  // namespace praxen::detail::abi
