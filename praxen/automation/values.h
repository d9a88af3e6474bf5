// Owners of automation texts, variants and interface pointers, for both systems.
#ifndef PRAXEN_AUTOMATION_VALUES_H_
#define PRAXEN_AUTOMATION_VALUES_H_

#include <concepts>
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "praxen/automation/automation.h"

namespace praxen::detail {

static_assert(sizeof(OLECHAR) == sizeof(char16_t));

/// The characters of an automation text, which stay the text's; empty for null.
inline std::u16string_view ViewOf(BSTR text) {
  return {reinterpret_cast<const char16_t*>(text), SysStringLen(text)};
}

/// Allocates an automation text; std::bad_alloc when memory is short.
inline BSTR AllocateBstr(std::u16string_view text) {
  if (text.size() > std::numeric_limits<UINT>::max()) throw std::bad_alloc();
  const BSTR copy = SysAllocStringLen(nullptr, static_cast<UINT>(text.size()));
  if (copy == nullptr) throw std::bad_alloc();
  if (!text.empty()) std::memcpy(copy, text.data(), text.size() * sizeof(char16_t));
  return copy;
}

}  // namespace praxen::detail

namespace praxen {

/// An owned automation text.
class BStr {
 public:
  BStr() = default;
  explicit BStr(std::u16string_view text) : text_(detail::AllocateBstr(text)) {}
  BStr(const BStr& other)
      : text_(other.text_ == nullptr ? nullptr : detail::AllocateBstr(other.View())) {}
  BStr(BStr&& other) noexcept : text_(other.Detach()) {}
  ~BStr() { SysFreeString(text_); }

  BStr& operator=(BStr other) noexcept {
    std::swap(text_, other.text_);
    return *this;
  }

  /// Takes over a text that the caller owned.
  static BStr Attach(BSTR text) noexcept {
    BStr owner;
    owner.text_ = text;
    return owner;
  }

  BSTR Get() const noexcept { return text_; }
  std::u16string_view View() const noexcept { return detail::ViewOf(text_); }

  /// Hands the text over to the caller.
  BSTR Detach() noexcept { return std::exchange(text_, nullptr); }

  /// Where a call stores a text, which is then owned; the text held before is freed.
  BSTR* Receive() noexcept {
    SysFreeString(Detach());
    return &text_;
  }

 private:
  BSTR text_ = nullptr;
};

/// An owned variant of the same layout, so that arrays of it serve as arguments.
class Variant : public VARIANT {
 public:
  Variant() noexcept { VariantInit(this); }

  explicit Variant(std::u16string_view text) : Variant() {
    bstrVal = detail::AllocateBstr(text);
    vt = VT_BSTR;
  }

  explicit Variant(const char16_t* text) : Variant(std::u16string_view(text)) {}

  template <std::signed_integral T>
  requires(sizeof(T) <= sizeof(int32_t)) explicit Variant(T value) noexcept : Variant() {
    lVal = value;
    vt = VT_I4;
  }

  explicit Variant(double value) noexcept : Variant() {
    dblVal = value;
    vt = VT_R8;
  }

  template <std::same_as<bool> T>
  explicit Variant(T value) noexcept : Variant() {
    boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    vt = VT_BOOL;
  }

  /// Shares the object, which may be null.
  explicit Variant(IDispatch* object) noexcept : Variant() {
    if (object != nullptr) object->AddRef();
    pdispVal = object;
    vt = VT_DISPATCH;
  }

  /// Copies any variant; std::bad_alloc when memory is short, std::invalid_argument for a type that
  /// cannot be copied.
  explicit Variant(const VARIANT& other) : Variant() {
    // Not every declaration of the function calls its source constant.
    const HRESULT result = VariantCopy(this, const_cast<VARIANT*>(&other));
    if (result == E_OUTOFMEMORY) throw std::bad_alloc();
    if (FAILED(result)) throw std::invalid_argument("variant of an unknown type");
  }

  Variant(const Variant& other) : Variant(static_cast<const VARIANT&>(other)) {}
  Variant(Variant&& other) noexcept : VARIANT(other.Detach()) {}
  ~Variant() { VariantClear(this); }

  Variant& operator=(Variant other) noexcept {
    std::swap(static_cast<VARIANT&>(*this), static_cast<VARIANT&>(other));
    return *this;
  }

  /// Hands the value over to the caller.
  VARIANT Detach() noexcept {
    const VARIANT value = *this;
    VariantInit(this);
    return value;
  }

  /// Where a call stores a value, which is then owned; the value held before is freed.
  VARIANT* Receive() noexcept {
    VariantClear(this);
    return this;
  }

  /// Converts the value in place; unchanged when that fails.
  HRESULT ChangeType(VARTYPE type, USHORT flags = 0) noexcept {
    return VariantChangeType(this, this, flags, type);
  }

  /// The text, which stays the variant's; empty when the variant holds none.
  std::u16string_view View() const noexcept {
    return vt == VT_BSTR ? detail::ViewOf(bstrVal) : std::u16string_view();
  }
};

static_assert(sizeof(Variant) == sizeof(VARIANT));

/// An owned interface pointer, which may be null.
template <class I>
class ComPointer {
 public:
  ComPointer() = default;

  /// Shares the object.
  explicit ComPointer(I* pointer) noexcept : pointer_(pointer) {
    if (pointer_ != nullptr) pointer_->AddRef();
  }

  ComPointer(const ComPointer& other) noexcept : ComPointer(other.pointer_) {}
  ComPointer(ComPointer&& other) noexcept : pointer_(other.Detach()) {}

  ~ComPointer() {
    if (pointer_ != nullptr) pointer_->Release();
  }

  ComPointer& operator=(ComPointer other) noexcept {
    std::swap(pointer_, other.pointer_);
    return *this;
  }

  /// Takes over a count that the caller held.
  static ComPointer Attach(I* pointer) noexcept {
    ComPointer owner;
    owner.pointer_ = pointer;
    return owner;
  }

  I* Get() const noexcept { return pointer_; }
  I* operator->() const noexcept { return pointer_; }
  I& operator*() const noexcept { return *pointer_; }
  explicit operator bool() const noexcept { return pointer_ != nullptr; }

  /// Hands the count over to the caller.
  I* Detach() noexcept { return std::exchange(pointer_, nullptr); }

  /// Where a call stores a pointer, which is then owned; the pointer held before is released.
  I** Receive() noexcept {
    *this = ComPointer();
    return &pointer_;
  }

  /// Asks the object for another interface; null when the object lacks it.
  template <class J>
  ComPointer<J> As(REFIID iid) const noexcept {
    void* other = nullptr;
    if (pointer_ == nullptr || FAILED(pointer_->QueryInterface(iid, &other))) return {};
    return ComPointer<J>::Attach(static_cast<J*>(other));
  }

 private:
  I* pointer_ = nullptr;
};

}  // namespace praxen

#endif  // PRAXEN_AUTOMATION_VALUES_H_
