// The functions that every interface table begins with: those of IUnknown and IDispatch.
#ifndef PRAXEN_DESCRIBE_DISPATCH_H_
#define PRAXEN_DESCRIBE_DISPATCH_H_

#include <array>
#include <span>

#include "praxen/automation/automation.h"
#include "praxen/describe/description.h"
#include "praxen/describe/slots.h"

namespace praxen::detail::dispatch {

HRESULT QueryInterface(Object& object, REFIID iid, void** out) noexcept;
HRESULT GetTypeInfoCount(UINT* count) noexcept;
HRESULT GetTypeInfo(const ClassDescription& description, UINT index, ITypeInfo** out) noexcept;
HRESULT GetIDsOfNames(Object& object, LPOLESTR* names, UINT count, DISPID* ids) noexcept;
HRESULT Invoke(Object& object, DISPID id, WORD flags, DISPPARAMS* parameters, VARIANT* result,
               EXCEPINFO* exception, UINT* badArgument) noexcept;

/// The functions for the tables of the interface through which `From` is reached.
template <class From>
struct Head {
  static HRESULT STDMETHODCALLTYPE QueryInterface(Interface* self, REFIID iid,
                                                  void** out) noexcept {
    return dispatch::QueryInterface(Self<From>(self), iid, out);
  }
  static ULONG STDMETHODCALLTYPE AddRef(Interface* self) noexcept {
    Object& object = Self<From>(self);
    object.AddRef();
    return object.references();
  }
  static ULONG STDMETHODCALLTYPE Release(Interface* self) noexcept {
    Object& object = Self<From>(self);
    const ULONG remaining = object.references() - 1;
    object.Release();
    return remaining;
  }
  static HRESULT STDMETHODCALLTYPE GetTypeInfoCount(Interface*, UINT* count) noexcept {
    return dispatch::GetTypeInfoCount(count);
  }
  static HRESULT STDMETHODCALLTYPE GetTypeInfo(Interface* self, UINT index, LCID,
                                               ITypeInfo** out) noexcept {
    return dispatch::GetTypeInfo(*static_cast<const ClassDescription*>(self->table[-1]), index,
                                 out);
  }
  static HRESULT STDMETHODCALLTYPE GetIDsOfNames(Interface* self, REFIID, LPOLESTR* names,
                                                 UINT count, LCID, DISPID* ids) noexcept {
    return dispatch::GetIDsOfNames(Self<From>(self), names, count, ids);
  }
  static HRESULT STDMETHODCALLTYPE Invoke(Interface* self, DISPID id, REFIID, LCID, WORD flags,
                                          DISPPARAMS* parameters, VARIANT* result,
                                          EXCEPINFO* exception, UINT* badArgument) noexcept {
    return dispatch::Invoke(Self<From>(self), id, flags, parameters, result, exception,
                            badArgument);
  }
};

}  // namespace praxen::detail::dispatch

namespace praxen::describe {

template <class From>
std::span<const void* const> DispatchHead() {
  using Head = detail::dispatch::Head<From>;
  static const std::array<const void*, 7> functions{
      reinterpret_cast<const void*>(&Head::QueryInterface),
      reinterpret_cast<const void*>(&Head::AddRef),
      reinterpret_cast<const void*>(&Head::Release),
      reinterpret_cast<const void*>(&Head::GetTypeInfoCount),
      reinterpret_cast<const void*>(&Head::GetTypeInfo),
      reinterpret_cast<const void*>(&Head::GetIDsOfNames),
      reinterpret_cast<const void*>(&Head::Invoke)};
  return functions;
}

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_DISPATCH_H_
