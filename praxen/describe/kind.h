// The kinds: interfaces that several classes implement besides their own.
#ifndef PRAXEN_DESCRIBE_KIND_H_
#define PRAXEN_DESCRIBE_KIND_H_

#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "praxen/describe/description.h"
#include "praxen/describe/slots.h"

namespace praxen::describe {

/// A class of a kind, and the member function of the kind that asks for it.
template <class Class, auto Question>
struct Asked {
  using Type = Class;
  static constexpr auto kQuestion = Question;

  static Member member() { return computed<Question>(help()); }
  static std::string help() {
    constexpr std::string_view kName = TypeName<Class>();
    return std::string("Whether it is ") + (IsSpokenWithVowel(kName) ? "an " : "a ") +
           std::string(kName) + ".";
  }

 private:
  /// The first letter of an abbreviation is spoken by its name, as in "an STCodeBlock".
  static constexpr bool IsSpokenWithVowel(std::string_view name) {
    const bool abbreviated = name[1] >= 'A' && name[1] <= 'Z';
    return std::string_view(abbreviated ? "AEFHILMNORSX" : "AEIOU").find(name[0]) !=
           std::string_view::npos;
  }
};

/// The classes of a kind, in the order in which their questions are published.
template <class... Each>
struct KindClasses {
  static Members questions() { return {Each::member()...}; }

  template <class Kind>
  static std::vector<Choice> choices() {
    return {choice<typename Each::Type, Kind, Each::kQuestion>()...};
  }

  /// The description of the class that a question asks for.
  template <auto Question>
  static const ClassDescription& AskedBy() {
    const ClassDescription* asked = nullptr;
    ((IsSame<Question, Each::kQuestion>() && (asked = &Describe<typename Each::Type>())), ...);
    return *asked;
  }

 private:
  template <auto A, auto B>
  static constexpr bool IsSame() {
    return std::is_same_v<Asked<void, A>, Asked<void, B>>;
  }
};

/// The base of the kind `Class`, which states the list `Classes` of its classes with the questions
/// for them. Objects of a kind itself, and of classes that clients derive from it, are not counted.
template <class Class, class Base = Object>
class KindBase : public Base, public KindInterface {
 public:
  using Kind = Class;

  Interface* kindInterface() noexcept final { return static_cast<KindInterface*>(this); }

  /// Holds an object that is implemented outside the library; an empty reference when it does not
  /// implement the kind.
  static Ref<Object> Adapt(Interface* foreign) { return Describe<Class>().adapt(foreign); }

  /// The classes that a list of the kind's elements may hold.
  static std::vector<Choice> choices() { return Class::Classes::template choices<Class>(); }

 protected:
  using T = Class;

  KindBase() : KindBase(Describe<Class>(), Object::Counting::No) {}
  explicit KindBase(const ClassDescription& description,
                    Object::Counting counting = Object::Counting::Yes)
      : Base(description, counting) {
    KindInterface::table = Describe<Class>().kindTable();
  }

  /// Whether the object is of the class that the question asks for.
  template <auto Question>
  bool Answer() const {
    return IsOf(Class::Classes::template AskedBy<Question>(), EntityName<Question>());
  }
  /// The text that elements of the kind have, such as a name. On its own a kind has none, and
  /// ignores one that is set.
  virtual Text GetText() const { return {}; }
  virtual void SetText(const Text&) {}

 private:
  /// Whether the object is of a class, which the published question of that name asks for.
  virtual bool IsOf(const ClassDescription& asked, std::string_view) const {
    return &asked == &this->description();
  }
};

/// Ties a class of a kind to its description. Its text is the data member that the kind's
/// `kindText` names, where the kind states one.
template <class Class, KindClass Kind>
class Described<Class, Kind> : public Kind {
 protected:
  using T = Class;

  Described() : Kind(Describe<Class>()) {}
  explicit Described(Object::Counting counting) : Kind(Describe<Class>(), counting) {}

 private:
  Text GetText() const final {
    if constexpr (requires(const Class& object) { Kind::kindText(object); }) {
      return Kind::kindText(static_cast<const Class&>(*this));
    } else {
      return {};
    }
  }
  void SetText([[maybe_unused]] const Text& text) final {
    if constexpr (requires(Class & object) { Kind::kindText(object); }) {
      Kind::kindText(static_cast<Class&>(*this)) = text;
    }
  }
};

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_KIND_H_
