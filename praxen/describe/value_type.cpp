// Conversions of values to and from automation variants.
#include "praxen/describe/value_type.h"

#include <new>

#include "praxen/automation/conversion.h"
#include "praxen/automation/values.h"
#include "praxen/automation/variants.h"
#include "praxen/core/error.h"
#include "praxen/describe/slots.h"

namespace praxen::describe {

namespace {

// The value of an argument, its references followed; an argument that is left out is marked by an
// error.
VariantValue ValueOfArgument(const VARIANT& argument) {
  const VariantValue value = ValueOf(argument);
  if (value.place == nullptr) throw ArgumentError{DISP_E_TYPEMISMATCH, &argument};
  if (value.type == VT_ERROR && *static_cast<const SCODE*>(value.place) == DISP_E_PARAMNOTFOUND) {
    throw ArgumentError{DISP_E_PARAMNOTOPTIONAL, &argument};
  }
  return value;
}

// The value of another type; whatever cannot be converted is of the wrong type.
Variant Convert(const VARIANT& argument, VARTYPE type) {
  ValueOfArgument(argument);
  Variant converted;
  const HRESULT result = ConvertVariant(converted, argument, VARIANT_ALPHABOOL, type);
  if (result == E_OUTOFMEMORY) throw std::bad_alloc();
  if (FAILED(result)) {
    throw ArgumentError{result == DISP_E_OVERFLOW ? result : DISP_E_TYPEMISMATCH, &argument};
  }
  return converted;
}

// The text of an argument, copied once when it is one already.
Text TextOfArgument(const VARIANT& argument) {
  const VariantValue value = ValueOfArgument(argument);
  if (value.type == VT_BSTR) return ViewOf(*static_cast<const BSTR*>(value.place));
  return Convert(argument, VT_BSTR).View();
}

Text TextOf(const Variant& variant) { return TextOfArgument(Convert(variant, VT_BSTR)); }

IUnknown* InterfaceOf(const VARIANT& argument) {
  const VariantValue value = ValueOfArgument(argument);
  if (value.type == VT_NULL) return nullptr;
  if (value.type != VT_DISPATCH && value.type != VT_UNKNOWN) {
    throw ArgumentError{DISP_E_TYPEMISMATCH, &argument};
  }
  return *static_cast<IUnknown* const*>(value.place);
}

}  // namespace

}  // namespace praxen::describe

namespace praxen::detail {

void TextToVariant(const void* value, tagVARIANT& variant) {
  variant.bstrVal = AllocateBstr(static_cast<const Text*>(value)->view());
  variant.vt = VT_BSTR;
}

void TextFromVariant(void* value, const tagVARIANT& variant) {
  *static_cast<Text*>(value) = TextOfArgument(variant);
}

void BooleanToVariant(const void* value, tagVARIANT& variant) {
  variant.boolVal = *static_cast<const bool*>(value) ? VARIANT_TRUE : VARIANT_FALSE;
  variant.vt = VT_BOOL;
}

void BooleanFromVariant(void* value, const tagVARIANT& variant) {
  *static_cast<bool*>(value) = Convert(variant, VT_BOOL).boolVal != VARIANT_FALSE;
}

void IntegerToVariant(const void* value, tagVARIANT& variant) {
  variant.lVal = *static_cast<const int32_t*>(value);
  variant.vt = VT_I4;
}

void IntegerFromVariant(void* value, const tagVARIANT& variant) {
  *static_cast<int32_t*>(value) = static_cast<int32_t>(Convert(variant, VT_I4).lVal);
}

void DoubleToVariant(const void* value, tagVARIANT& variant) {
  variant.dblVal = *static_cast<const double*>(value);
  variant.vt = VT_R8;
}

void DoubleFromVariant(void* value, const tagVARIANT& variant) {
  *static_cast<double*>(value) = Convert(variant, VT_R8).dblVal;
}

void AnyFromVariant(void* value, const tagVARIANT& variant) {
  *static_cast<AnyValue*>(value) = TextOfArgument(variant);
}

Ref<Object> ObjectFromVariant(const tagVARIANT& variant, Ref<Object> (*adapt)(Interface*)) {
  IUnknown* const unknown = InterfaceOf(variant);
  try {
    return abi::ToObject(reinterpret_cast<Interface*>(unknown), adapt);
  } catch (const Error&) {
    ThrowWrongClass(variant);
  }
}

void ObjectToVariant(Object* object, tagVARIANT& variant) {
  Interface* stored = nullptr;
  abi::StoreObject(object, &stored);
  variant.pdispVal = reinterpret_cast<IDispatch*>(stored);
  variant.vt = VT_DISPATCH;
}

void EnumeratorToVariant(Object* enumerator, tagVARIANT& variant) {
  ObjectToVariant(enumerator, variant);
  variant.vt = VT_UNKNOWN;
}

void ThrowWrongClass(const tagVARIANT& variant) {
  throw ArgumentError{DISP_E_TYPEMISMATCH, &variant};
}

}  // namespace praxen::detail

namespace praxen {

using describe::TextOf;

AnyValue::AnyValue(int32_t number) : text_(TextOf(Variant(number))) {}
AnyValue::AnyValue(double number) : text_(TextOf(Variant(number))) {}
AnyValue::AnyValue(bool value) : text_(TextOf(Variant(value))) {}

}  // namespace praxen
