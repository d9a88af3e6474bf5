// Documents made at random from the declarations of the elements, sound and with one fault.
#ifndef PRAXEN_TESTS_SUPPORT_RANDOM_DOCUMENTS_H_
#define PRAXEN_TESTS_SUPPORT_RANDOM_DOCUMENTS_H_

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/generate/schema.h"

namespace praxen::detail {

/// An element while it is made.
struct RandomElement {
  const ElementDeclaration* declaration = nullptr;
  std::u16string prefix = {};
  /// Names and what is written between the quotes, which are apostrophes.
  std::vector<std::pair<std::u16string, std::u16string>> attributes = {};
  /// What is written between the tags.
  std::u16string content = {};
};

struct RandomDocument {
  std::u16string text;
  /// What was done to it; "none" for a sound document.
  std::string fault;
};

/// Makes the same documents of the same seed everywhere.
class RandomDocuments {
 public:
  explicit RandomDocuments(uint32_t seed);

  /// A document with any element as its root; every second one has a fault.
  RandomDocument Next();

  /// The names of all faults.
  static std::vector<std::string> Faults();

  size_t Below(size_t limit) { return random_() % limit; }
  bool Chance(size_t oneIn) { return Below(oneIn) == 0; }
  template <class T>
  T Any(std::initializer_list<T> choices) {
    return choices.begin()[Below(choices.size())];
  }

 private:
  const ElementDeclaration& AnyDeclaration();
  std::u16string MakeElement(const ElementDeclaration& declaration, int depth);
  std::u16string MakeContent(const ElementDeclaration& declaration, int depth);
  std::u16string Characters(bool isValue);
  std::u16string Child(int depth);
  std::u16string Render(const RandomElement& element);

  std::mt19937 random_;
  std::vector<ElementDeclaration> declarations_;
  /// The fault that an element is still to be given.
  const struct ElementFault* pending_ = nullptr;
};

}  // namespace praxen::detail

#endif  // PRAXEN_TESTS_SUPPORT_RANDOM_DOCUMENTS_H_
