// Changes to texts that look like XML, at the level of elements, attributes and values.
#ifndef PRAXEN_TESTS_SUPPORT_XML_MUTATION_H_
#define PRAXEN_TESTS_SUPPORT_XML_MUTATION_H_

#include <cstddef>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace praxen::detail {

struct Span {
  size_t begin = 0, end = 0;

  std::string_view In(std::string_view xml) const { return xml.substr(begin, end - begin); }
};

struct ElementSpans {
  Span all, name;
  /// Empty for an element without an end tag.
  Span endName = {};
};

/// The places of markup in a text.
struct MarkupSpans {
  /// In document order, those without an end left out.
  std::vector<ElementSpans> elements;
  /// With the blank before them.
  std::vector<Span> attributes;
  /// Of the attributes, without quotes.
  std::vector<Span> values;
  /// Between tags, inside the document element, where they are not blank.
  std::vector<Span> texts;
};

/// Finds markup without checking it.
MarkupSpans FindMarkup(std::string_view xml);
/// The name of the first element, without a prefix.
std::u16string RootName(std::string_view xml);

class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}

  size_t Below(size_t below) { return engine_() % below; }
  bool OneIn(size_t count) { return Below(count) == 0; }
  template <class List>
  const auto& OneOf(const List& list) {
    return list[Below(std::size(list))];
  }

 private:
  std::mt19937 engine_;
};

/// The text after one to three changes; empty when there is nothing to change.
std::string Mutated(std::string_view xml, Random& random);
/// The first text with an element of the second; empty when there is none or no place for it.
std::string Spliced(std::string_view xml, std::string_view other, Random& random);
/// The text with one character dropped, added or replaced, mostly by one that markup is made of, or
/// with another declaration or end.
std::u16string Spoiled(std::u16string text, Random& random);

}  // namespace praxen::detail

#endif  // PRAXEN_TESTS_SUPPORT_XML_MUTATION_H_
