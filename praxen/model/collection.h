// Collection, the pattern of every list of the model.
#ifndef PRAXEN_MODEL_COLLECTION_H_
#define PRAXEN_MODEL_COLLECTION_H_

#include <cstdint>
#include <type_traits>
#include <vector>

#include "praxen/core/error.h"
#include "praxen/describe/creation.h"
#include "praxen/describe/description.h"
#include "praxen/describe/enumerator.h"

namespace praxen::detail {

/// The 0-based index of a 1-based position among `count`; raises `SubscriptOutOfRange`.
size_t ToIndex(int32_t position, size_t count);
/// Inserts before a position from 1 to the number of elements plus 1; raises `InvalidArgument`.
void InsertBefore(std::vector<Ref<Object>>& elements, const Ref<Object>& element, int32_t position);
int32_t CountOf(const std::vector<Ref<Object>>& elements);

/// The property that `Find` compares: `Class::key` where a class states one, else its `Name`.
template <class Element>
concept StatesKey = requires {
  Element::key();
};
template <class Element>
concept HasKey = StatesKey<Element> || requires(const Element& element) {
  Text(element.Name);
} || requires(const Element& element) {
  Text(element.Name());
};

template <HasKey Element>
Text KeyOf(const Element& element) {
  if constexpr (StatesKey<Element>) {
    return element.*Element::key();
  } else if constexpr (describe::KindClass<Element>) {
    return element.Name();
  } else {
    return element.Name;
  }
}

template <class Element>
concept HasForm = requires {
  typename Element::Form;
};
template <class Element>
concept HasLongForm = requires {
  typename Element::LongForm;
};

}  // namespace praxen::detail

namespace praxen {

/// Walks a list in C++; reaching an empty reference raises `MissingObject`.
template <class Element>
class CollectionIterator {
 public:
  using value_type = Element;
  using difference_type = std::ptrdiff_t;

  CollectionIterator() = default;
  explicit CollectionIterator(std::vector<Ref<Object>>::const_iterator place) : place_(place) {}
  Element& operator*() const { return static_cast<Element&>(**place_); }
  Element* operator->() const { return &**this; }
  CollectionIterator& operator++() {
    ++place_;
    return *this;
  }
  CollectionIterator operator++(int) {
    CollectionIterator before = *this;
    ++place_;
    return before;
  }
  friend bool operator==(const CollectionIterator&, const CollectionIterator&) = default;

 private:
  std::vector<Ref<Object>>::const_iterator place_;
};

/// An ordered list of shared references with 1-based positions.
///
/// The same element may stand in several places and lists; names need not be unique. Elements are
/// neither copied nor checked. An empty reference may stand in a list, which then cannot be
/// written. `Class` is the list's own class; it may give its layout and members anew.
template <class Class, class Element, class Base = Object>
class Collection : public describe::Described<Class, Base> {
 public:
  void Add(const Ref<Element>& element) {
    elements_.push_back(element);
    ElementAdded(element.get());
  }
  /// Inserts before the element at `BeforeIndex`, which may be `Count` + 1; raises
  /// `InvalidArgument` for another position.
  void AddBefore(const Ref<Element>& element, int32_t BeforeIndex) {
    detail::InsertBefore(elements_, element, BeforeIndex);
    ElementAdded(element.get());
  }
  /// Creates an element from the properties that its `Form` names, appends and returns it.
  template <class... Arguments>
  requires detail::HasForm<Element> Ref<Element> Add1(const Arguments&... arguments) {
    return Create<typename Element::Form>(arguments...);
  }
  /// The same with the properties of `LongForm`.
  template <class... Arguments>
  requires detail::HasLongForm<Element> Ref<Element> Add2(const Arguments&... arguments) {
    return Create<typename Element::LongForm>(arguments...);
  }
  /// The first element of that name, compared exactly; an empty reference when there is none.
  Ref<Element> Find(const Text& key) const requires detail::HasKey<Element> {
    return FirstOf([&](const Element& element) { return detail::KeyOf(element) == key; }).element;
  }
  /// The position of the first element of that name; -1 when there is none.
  int32_t FindNr(const Text& key) const requires detail::HasKey<Element> {
    return PositionOf([&](const Element& element) { return detail::KeyOf(element) == key; });
  }
  /// The element at a position from 1 to `Count`; raises `SubscriptOutOfRange` for another.
  Ref<Element> Item(int32_t vntIndexKey) const {
    const size_t index = detail::ToIndex(vntIndexKey, elements_.size());
    return static_cast<Element*>(elements_[index].get());
  }
  int32_t Count() const { return detail::CountOf(elements_); }

  // The list as C++ has its own: counted from 0.

  size_t size() const noexcept { return elements_.size(); }
  bool empty() const noexcept { return elements_.empty(); }
  /// The element at an index from 0 to `size()` - 1; raises `SubscriptOutOfRange` for another.
  Ref<Element> operator[](size_t index) const {
    if (index >= elements_.size()) throw detail::SubscriptOutOfRange();
    return static_cast<Element*>(elements_[index].get());
  }

  /// Removes the element at a position; those after it move up.
  void Remove(int32_t vntIndexKey) {
    const size_t index = detail::ToIndex(vntIndexKey, elements_.size());
    // The element may die with its reference, and must not find the list half changed then.
    const Ref<Object> removed = elements_[index];
    elements_.erase(elements_.begin() + static_cast<std::ptrdiff_t>(index));
    ElementRemoved(removed.get());
  }
  /// An enumerator over the elements in list order.
  Ref<Enumerator> NewEnum() const {
    return new Enumerator(Ref<Object>(const_cast<Collection*>(this)));
  }

  using iterator = CollectionIterator<Element>;
  iterator begin() const { return iterator(elements_.begin()); }
  iterator end() const { return iterator(elements_.end()); }

  const std::vector<Ref<Object>>* elements() const noexcept final { return &elements_; }
  void Append(const Ref<Object>& element) final {
    // The smallest block of memory has room for so many.
    constexpr size_t kFirstRoom = 3;
    if (elements_.capacity() == 0) elements_.reserve(kFirstRoom);
    elements_.push_back(element);
    ElementAdded(element.get());
  }

  /// What named arguments call an element that is added.
  static constexpr std::string_view kArgument = detail::TypeName<Element>();

  static describe::Members members() {
    using namespace describe;
    return additions() + lookups() + positions();
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.elements = {choice<Element>()}, .container = Container::WhenNotEmpty};
  }

 protected:
  /// The position of the first element that matches; -1 when there is none.
  template <class Matches>
  int32_t PositionOf(Matches matches) const {
    return FirstOf(matches).position;
  }

  struct Match {
    Ref<Element> element;
    int32_t position = -1;
  };

  /// The first element that matches; an empty reference matches nothing. A client's own element may
  /// change the list, or let go of it, while it is asked.
  template <class Matches>
  Match FirstOf(Matches matches) const {
    const Ref<Object> kept = detail::KeepIfShared(*this);
    for (size_t i = 0; i < elements_.size(); ++i) {
      const Ref<Object> element = elements_[i];
      if (!element || !matches(static_cast<const Element&>(*element))) continue;
      return {static_cast<Element*>(element.get()), static_cast<int32_t>(i + 1)};
    }
    return {};
  }

  static describe::Member add() {
    using namespace describe;
    return method<&Class::Add>("Appends the element.", {Class::kArgument});
  }
  static describe::Member addBefore() {
    using namespace describe;
    return method<&Class::AddBefore>(
        "Inserts the element before the one at the position; Count + 1 appends.",
        {Class::kArgument, "BeforeIndex"});
  }
  /// Creates an element as `Form` tells, appends and returns it.
  template <describe::MakingOperation Form>
  auto Create(const auto&... arguments) {
    return Addition<Form>::Run(*this, arguments...);
  }
  /// The addition of what `Form` creates, published under that name.
  template <describe::MakingOperation Form>
  static describe::Member creation(std::string_view name, std::string_view help = Form::Help()) {
    using namespace describe;
    return making<Addition<Form>, Form>(name, help);
  }
  static describe::Members additions() {
    using namespace describe;
    describe::Members members{add(), addBefore()};
    if constexpr (detail::HasForm<Element>) {
      members.push_back(creation<typename Element::Form>("Add1"));
    }
    if constexpr (detail::HasLongForm<Element>) {
      members.push_back(creation<typename Element::LongForm>("Add2"));
    }
    return members;
  }
  static describe::Members lookups() {
    using namespace describe;
    if constexpr (detail::HasKey<Element>) {
      std::string_view key = "Name";
      if constexpr (detail::StatesKey<Element>) key = detail::EntityName<Element::key()>();
      return {
          method<&Class::Find>("The first element of that name, or nothing.", {key}),
          method<&Class::FindNr>("The position of the first element of that name, or -1.", {key})};
    } else {
      return {};
    }
  }
  static describe::Member item() {
    using namespace describe;
    return WithId(
        computed<&Class::Item>("The element at a position from 1 to Count.", {"vntIndexKey"}),
        kDefaultMemberId);
  }
  static describe::Members positions() {
    using namespace describe;
    return {item(), computed<&Class::Count>("The number of elements."),
            method<&Class::Remove>("Removes the element at a position.", {"vntIndexKey"}),
            WithId(computed<&Class::NewEnum>("An enumerator over the elements in list order."),
                   kEnumeratorId)};
  }

 private:
  template <class Form, class Signature = decltype(&Form::operator())>
  struct Addition;
  template <class Form, class Creating, class Made, class... Arguments>
  struct Addition<Form, Made (Creating::*)(Arguments...) const> {
    static Made Run(Collection& list, Arguments... arguments) {
      const Made object = Form()(arguments...);
      list.RequireAddable(*object);
      list.Add(object);
      return object;
    }
  };

  /// What a list asks of an element that it creates before appending it; raises an error.
  virtual void RequireAddable(const Element&) {}
  /// What a list that keeps track of its elements does after each change; null is an empty
  /// reference.
  virtual void ElementAdded(Object*) noexcept {}
  virtual void ElementRemoved(Object*) noexcept {}

  std::vector<Ref<Object>> elements_;
};

}  // namespace praxen

#endif  // PRAXEN_MODEL_COLLECTION_H_
