// What a document names that the schema does not declare.
#ifndef PRAXEN_XML_XML_FOREIGN_NAMES_H_
#define PRAXEN_XML_XML_FOREIGN_NAMES_H_

#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "praxen/xml/xml_limits.h"
#include "praxen/xml/xml_name.h"

namespace praxen::detail {

/// Tells whether a choice of texts makes one list of a hash table of Xerces longer than `Limit`.
/// `Moduli` are the numbers of lists that the table has while it grows.
template <size_t Limit, size_t... Moduli>
class XmlHashLists {
 public:
  /// Adds a text that was not added yet.
  void Add(std::u16string_view text) {
    hashes_.push_back(Hash(text));
    if (hashes_.size() <= Limit) return;
    if (!counts_.empty()) return Count(hashes_.back());
    counts_.resize((Moduli + ...));
    for (const size_t hash : hashes_) Count(hash);
  }
  size_t size() const { return hashes_.size(); }
  bool isTooLong() const { return isTooLong_; }
  void Clear() {
    hashes_.clear();
    counts_.clear();
    isTooLong_ = false;
  }

 private:
  // That of Xerces.
  static size_t Hash(std::u16string_view text) {
    size_t hash = text.empty() ? 0 : text.front();
    for (size_t i = 1; i < text.size(); ++i) hash = hash * 38 + (hash >> 24) + text[i];
    return hash;
  }
  void Count(size_t hash) {
    size_t first = 0;
    const auto count = [&](size_t modulus) {
      if (++counts_[first + hash % modulus] > Limit) isTooLong_ = true;
      first += modulus;
    };
    (count(Moduli), ...);
  }

  std::vector<size_t> hashes_;
  std::vector<uint16_t> counts_;
  bool isTooLong_ = false;
};

/// The names, prefixes and namespaces of a document that the schema does not declare. They stay in
/// the parser's tables, which take strangers' choices badly: they are counted, so that a document
/// with too many of them is refused and a parser that has kept many is given up.
class XmlForeignNames {
 public:
  /// Forgets the names of the document before.
  void BeginDocument();
  /// The same, and tells that the parser is new.
  void BeginParser();

  /// The name, valid until the next document begins.
  XmlName Intern(std::u16string_view name) { return names_.Intern(name); }
  /// Adds an element, which the parser keeps under a number.
  void AddElement(size_t number, std::u16string_view localName);
  /// Adds a declaration of a namespace.
  void AddNamespace(std::u16string_view prefix, std::u16string_view name);

  /// Which limit the document exceeds; an empty text when it exceeds none.
  std::u16string Excess() const;
  /// About how many the parser has kept since it was new.
  size_t kept() const { return kept_ + names_.size() + namespaces_.size() + elements_.size(); }

 private:
  using Lists = XmlHashLists<kMaxXmlAlikeElements, 29>;
  using GrowingLists = XmlHashLists<kMaxXmlAlikeNamespaces, 109, 219, 439, 879, 1759, 3519>;

  XmlNameUser names_;
  std::vector<bool> seenElements_;
  Lists elements_;
  std::set<std::u16string, std::less<>> prefixes_, namespaces_;
  GrowingLists prefixLists_, namespaceLists_;
  size_t kept_ = 0;
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_FOREIGN_NAMES_H_
