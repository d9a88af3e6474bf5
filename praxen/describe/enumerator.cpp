// The enumerator and its interface table, which is that of IEnumVARIANT.
#include "praxen/describe/enumerator.h"

#include <algorithm>
#include <array>

#include "praxen/automation/values.h"
#include "praxen/describe/description.h"
#include "praxen/describe/dispatch.h"

namespace praxen::describe {

namespace {

Enumerator& ThisOf(Interface* self) { return Self<Enumerator>(self); }

HRESULT STDMETHODCALLTYPE QueryInterface(Interface* self, REFIID iid, void** out) noexcept {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  if (iid != IID_IUnknown && iid != IID_IEnumVARIANT) return E_NOINTERFACE;
  ThisOf(self).AddRef();
  *out = self;
  return S_OK;
}

HRESULT STDMETHODCALLTYPE Next(Interface* self, ULONG count, VARIANT* values,
                               ULONG* fetched) noexcept {
  if (fetched != nullptr) *fetched = 0;
  if (values == nullptr || (fetched == nullptr && count != 1)) return E_POINTER;
  Enumerator& enumerator = ThisOf(self);
  ULONG got = 0;
  for (; got < count && !enumerator.atEnd(); ++got) {
    VariantInit(&values[got]);
    detail::ObjectToVariant(enumerator.Next().get(), values[got]);
  }
  if (fetched != nullptr) *fetched = got;
  return got == count ? S_OK : S_FALSE;
}

HRESULT STDMETHODCALLTYPE Skip(Interface* self, ULONG count) noexcept {
  return ThisOf(self).Skip(count) ? S_OK : S_FALSE;
}

HRESULT STDMETHODCALLTYPE Reset(Interface* self) noexcept {
  ThisOf(self).Reset();
  return S_OK;
}

HRESULT STDMETHODCALLTYPE Clone(Interface* self, IEnumVARIANT** out) noexcept {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  return abi::Guard([&] {
    Interface* clone = nullptr;
    abi::StoreObject(ThisOf(self).Clone().get(), &clone);
    *out = reinterpret_cast<IEnumVARIANT*>(clone);
  });
}

}  // namespace

template <>
const ClassDescription& Describe<Enumerator>() {
  static const std::array<const void*, 7> functions{reinterpret_cast<const void*>(&QueryInterface),
                                                    DispatchHead<Object>()[1],
                                                    DispatchHead<Object>()[2],
                                                    reinterpret_cast<const void*>(&Next),
                                                    reinterpret_cast<const void*>(&Skip),
                                                    reinterpret_cast<const void*>(&Reset),
                                                    reinterpret_cast<const void*>(&Clone)};
  static const ClassDescription description([] {
    ClassFacts facts;
    facts.name = "Enumerator";
    facts.head = functions;
    return facts;
  }());
  return description;
}

}  // namespace praxen::describe

namespace praxen {

Enumerator::Enumerator(const Ref<Object>& list)
    : Object(describe::Describe<Enumerator>(), Counting::No),
      list_(list),
      elements_(*list->elements()) {}

Enumerator::Enumerator(const Enumerator& other)
    : Object(describe::Describe<Enumerator>(), Counting::No),
      list_(other.list_),
      elements_(other.elements_),
      next_(other.next_) {}

Ref<Object> Enumerator::Next() { return atEnd() ? Ref<Object>() : elements_[next_++]; }

bool Enumerator::Skip(size_t count) {
  const size_t left = elements_.size() - next_;
  next_ += std::min(count, left);
  return count <= left;
}

Ref<Enumerator> Enumerator::Clone() const { return new Enumerator(*this); }

}  // namespace praxen
