// A client that knows the library as automation shows it: by names and interface pointers.
#ifndef PRAXEN_TESTS_SERVER_CLIENT_H_
#define PRAXEN_TESTS_SERVER_CLIENT_H_

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "praxen/automation/values.h"

namespace praxen::detail::client {

using Handle = ComPointer<IDispatch>;
using Values = std::vector<Variant>;

/// What a call gave.
struct Outcome {
  HRESULT result = S_OK;
  Variant value;
  /// From the EXCEPINFO.
  HRESULT code = S_OK;
  std::u16string description;
  UINT badArgument = 99;
  /// From the thread's error information.
  std::u16string reported;
};

/// Creates an object through the library's class object.
Handle Create(std::string_view className);

/// DISPID_UNKNOWN when the object has no such member.
DISPID IdOf(const Handle& object, std::u16string_view name);

/// Calls with the unnamed arguments in natural order; the named ones are (identifier, value).
Outcome Invoke(const Handle& object, DISPID id, WORD flags, const Values& arguments,
               const std::vector<std::pair<DISPID, Variant>>& named = {});

Outcome Call(const Handle& object, std::u16string_view name, const Values& arguments = {});
Outcome Put(const Handle& object, std::u16string_view name, const Variant& value);

/// The value of a call that has to succeed.
Variant Get(const Handle& object, std::u16string_view name, const Values& arguments = {});
std::u16string GetText(const Handle& object, std::u16string_view name);
Handle Obtain(const Handle& object, std::u16string_view name, const Values& arguments = {});
/// The object in a variant; null for none.
Handle ToHandle(const Variant& variant);

/// A variant that refers to a value of the caller's.
Variant Reference(VARTYPE type, void* value);
/// A variant of a type and content without meaning to its type's rules.
Variant OfType(VARTYPE type, LONG content = 0);

/// `maintenance.NrOfObjects`, without the object through which it is read.
int32_t CountedObjects();

}  // namespace praxen::detail::client

#endif  // PRAXEN_TESTS_SERVER_CLIENT_H_
