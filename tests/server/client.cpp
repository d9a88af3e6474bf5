// The calls of the automation client.
#include "tests/server/client.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "praxen/core/text.h"
#include "praxen/describe/identifiers.h"
#include "praxen/factory/classes.h"
#include "praxen/server/class_object.h"

namespace praxen::detail::client {

namespace {

std::u16string TextOfError() {
  ComPointer<IErrorInfo> info;
  if (GetErrorInfo(0, info.Receive()) != S_OK) return {};
  BStr description;
  info->GetDescription(description.Receive());
  return std::u16string(description.View());
}

}  // namespace

Handle Create(std::string_view className) {
  const ClassDescription* const description = FindClass(FromUtf8(className));
  if (description == nullptr) return {};
  ComPointer<IClassFactory> factory;
  Handle object;
  GetClassObject(ClassId(*description), IID_IClassFactory,
                 reinterpret_cast<void**>(factory.Receive()));
  if (!factory) return {};
  factory->CreateInstance(nullptr, IID_IDispatch, reinterpret_cast<void**>(object.Receive()));
  return object;
}

DISPID IdOf(const Handle& object, std::u16string_view name) {
  BStr text(name);
  LPOLESTR names[] = {text.Get()};
  DISPID id = 0;
  object->GetIDsOfNames(IID_NULL, names, 1, 0, &id);
  return id;
}

Outcome Invoke(const Handle& object, DISPID id, WORD flags, const Values& arguments,
               const std::vector<std::pair<DISPID, Variant>>& named) {
  Values values;
  std::vector<DISPID> ids;
  for (const auto& [name, value] : named) {
    ids.push_back(name);
    values.push_back(value);
  }
  std::reverse_copy(arguments.begin(), arguments.end(), std::back_inserter(values));
  DISPPARAMS parameters = {values.data(), ids.data(), static_cast<UINT>(values.size()),
                           static_cast<UINT>(ids.size())};
  EXCEPINFO exception = {};
  Outcome outcome;
  outcome.result = object->Invoke(id, IID_NULL, 0, flags, &parameters, &outcome.value, &exception,
                                  &outcome.badArgument);
  outcome.code = exception.scode;
  outcome.description = BStr::Attach(exception.bstrDescription).View();
  BStr::Attach(exception.bstrSource);
  outcome.reported = TextOfError();
  return outcome;
}

Outcome Call(const Handle& object, std::u16string_view name, const Values& arguments) {
  return Invoke(object, IdOf(object, name), DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments);
}

Outcome Put(const Handle& object, std::u16string_view name, const Variant& value) {
  return Invoke(object, IdOf(object, name), DISPATCH_PROPERTYPUT, {},
                {{DISPID_PROPERTYPUT, value}});
}

Variant Get(const Handle& object, std::u16string_view name, const Values& arguments) {
  Outcome outcome = Call(object, name, arguments);
  EXPECT_EQ(outcome.result, S_OK) << ToUtf8(name) << ": " << ToUtf8(outcome.description);
  return outcome.value;
}

std::u16string GetText(const Handle& object, std::u16string_view name) {
  return std::u16string(Get(object, name).View());
}

Handle Obtain(const Handle& object, std::u16string_view name, const Values& arguments) {
  return ToHandle(Get(object, name, arguments));
}

Handle ToHandle(const Variant& variant) {
  return Handle(variant.vt == VT_DISPATCH ? variant.pdispVal : nullptr);
}

Variant Reference(VARTYPE type, void* value) {
  Variant variant;
  variant.vt = static_cast<VARTYPE>(type | VT_BYREF);
  variant.byref = value;
  return variant;
}

Variant OfType(VARTYPE type, LONG content) {
  Variant variant;
  variant.vt = type;
  variant.lVal = content;
  return variant;
}

int32_t CountedObjects() {
  const Handle maintenance = Create("maintenance");
  return static_cast<int32_t>(Get(maintenance, u"NrOfObjects").lVal) - 1;
}

}  // namespace praxen::detail::client
