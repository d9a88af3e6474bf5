// Object, the counted base of every class of the model, and Ref, the reference to one.
#ifndef PRAXEN_DESCRIBE_OBJECT_H_
#define PRAXEN_DESCRIBE_OBJECT_H_

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

#include "praxen/core/text.h"

namespace praxen {

template <class T>
class Ref;

}  // namespace praxen

namespace praxen::describe {

struct ClassDescription;
struct StorageAccess;

}  // namespace praxen::describe

namespace praxen::detail {

class XMLStringWriter;
class XmlCursor;
class XmlNode;

/// What an automation client's interface pointer points to: a table of functions in slot order.
/// The entry before the first is the description of the class.
struct Interface {
  const void* const* table = nullptr;
};

[[noreturn]] void ThrowMissingObject();
[[noreturn]] void ThrowTypeMismatch();

}  // namespace praxen::detail

namespace praxen {

/// The base of every object of the model.
///
/// Objects are created with `New` and live as long as a `Ref` or an automation client refers to
/// them; the count is not synchronised, so an object and all that it contains are used by one
/// thread at a time. Distinct threads use distinct objects at once. An object is its own automation
/// object: its `Interface` base is its default interface.
class Object : public detail::Interface {
 public:
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object();

  /// Objects that are made while a document is read lie beside each other.
  static void* operator new(size_t size);
  static void operator delete(void* object) noexcept;
  static void* operator new(size_t size, std::align_val_t alignment) {
    return ::operator new(size, alignment);
  }
  static void operator delete(void* object, std::align_val_t alignment) noexcept {
    ::operator delete(object, alignment);
  }

  void AddRef() noexcept { ++references_; }
  void Release() noexcept {
    if (--references_ == 0) Destroy();
  }
  uint32_t references() const noexcept { return references_; }

  /// Published members and XML layout of the object's class.
  const describe::ClassDescription& description() const noexcept {
    return *static_cast<const describe::ClassDescription*>(table[-1]);
  }

  /// Writes the object's element; raises `RequiredFieldsEmpty` before anything of it is written.
  void WriteXML(detail::XMLStringWriter& writer);
  /// Fills a fresh object from its element.
  void ReadXML(const detail::XmlNode& node);

  /// The elements of a list; null for an object that is no list.
  virtual const std::vector<Ref<Object>>* elements() const noexcept { return nullptr; }
  /// The second interface of an object that implements a kind; null for the others.
  virtual detail::Interface* kindInterface() noexcept { return nullptr; }
  /// Appends to a list; the element is of a class that the list's layout names.
  virtual void Append(const Ref<Object>&) {}

  /// The object as a `T`, such as the `STCodeBlock` that an `ICodeBlock` is; an empty reference
  /// when it is of another class.
  template <class T>
  Ref<T> As() noexcept;

  /// Set on the object whose document is being written, until its start tag is chosen.
  bool IsRoot = false;

 protected:
  /// Whether the library-wide object counter counts the object.
  enum class Counting : bool { No, Yes };

  explicit Object(const describe::ClassDescription& description, Counting counting = Counting::Yes);

 private:
  void Destroy() noexcept;

  uint32_t references_ = 0;
  const Counting counting_;
};

/// A shared reference to an object, or to none.
///
/// Reaching through an empty reference raises `MissingObject`.
template <class T>
class Ref {
 public:
  Ref() noexcept = default;
  Ref(std::nullptr_t) noexcept {}              // NOLINT
  Ref(T* object) noexcept : object_(object) {  // NOLINT
    if (object_ != nullptr) object_->AddRef();
  }
  Ref(const Ref& other) noexcept : Ref(other.object_) {}
  Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  template <class U>  // NOLINTNEXTLINE
  requires std::convertible_to<U*, T*> Ref(const Ref<U>& other)
  noexcept : Ref(other.get()) {}
  ~Ref() {
    if (object_ != nullptr) object_->Release();
  }
  Ref& operator=(Ref other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  /// The object, or a null pointer.
  T* get() const noexcept { return object_; }
  T* operator->() const { return &**this; }
  T& operator*() const {
    if (object_ == nullptr) [[unlikely]]
      detail::ThrowMissingObject();
    return *object_;
  }
  explicit operator bool() const noexcept { return object_ != nullptr; }
  /// The object as a `U`; an empty reference when it is of another class, or none.
  template <class U>
  Ref<U> As() const noexcept {
    return dynamic_cast<U*>(object_);
  }
  friend bool operator==(const Ref& left, const Ref& right) noexcept = default;

 private:
  T* object_ = nullptr;
};

/// Creates an object with the values of its creation.
template <class T>
Ref<T> New() {
  return Ref<T>(new T);
}

/// The object as a `T`, or an empty reference when it is of another class.
template <class T, class U>
Ref<T> Cast(const Ref<U>& object) noexcept {
  return object.template As<T>();
}

template <class T>
Ref<T> Object::As() noexcept {
  return dynamic_cast<T*>(this);
}

/// A property that clients can only read; the class and the reading of XML fill it.
template <class T>
class ReadOnly {
 public:
  ReadOnly() = default;
  ReadOnly(T value) : value_(std::move(value)) {}        // NOLINT
  operator const T&() const noexcept { return value_; }  // NOLINT
  const T& get() const noexcept { return value_; }
  template <class U>
  requires(!std::is_same_v<U, ReadOnly>) friend bool operator==(const ReadOnly& left,
                                                                const U& right) {
    return left.value_ == right;
  }

 private:
  friend struct describe::StorageAccess;
  ReadOnly& operator=(const ReadOnly&) = default;

  T value_{};
};

}  // namespace praxen

namespace praxen::detail {

/// Keeps an object alive while a client's code, called in between, may release it. One that nobody
/// refers to, such as a local variable, lives on without.
inline Ref<Object> KeepIfShared(const Object& object) noexcept {
  return object.references() == 0 ? nullptr : const_cast<Object*>(&object);
}

}  // namespace praxen::detail

#endif  // PRAXEN_DESCRIBE_OBJECT_H_
