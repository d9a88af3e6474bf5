// The counting of foreign names.
#include "praxen/xml/xml_foreign_names.h"

#include <algorithm>

#include "praxen/core/numbers.h"

namespace praxen::detail {

void XmlForeignNames::BeginDocument() {
  kept_ = kept();
  names_.Clear();
  seenElements_.clear();
  elements_.Clear();
  prefixes_.clear();
  namespaces_.clear();
  prefixLists_.Clear();
  namespaceLists_.Clear();
}

void XmlForeignNames::BeginParser() {
  BeginDocument();
  kept_ = 0;
}

void XmlForeignNames::AddElement(size_t number, std::u16string_view localName) {
  if (number >= seenElements_.size()) seenElements_.resize(number + 1);
  if (seenElements_[number]) return;
  seenElements_[number] = true;
  elements_.Add(localName);
}

void XmlForeignNames::AddNamespace(std::u16string_view prefix, std::u16string_view name) {
  if (!prefix.empty() && prefixes_.emplace(prefix).second) prefixLists_.Add(prefix);
  if (namespaces_.emplace(name).second) namespaceLists_.Add(name);
}

std::u16string XmlForeignNames::Excess() const {
  const auto most = [](size_t limit) {
    return u"; at most " + DecimalText(limit) + u" are allowed";
  };
  if (std::max({names_.size(), elements_.size(), namespaces_.size()}) > kMaxXmlForeignNames) {
    return u"too many different names that the schema does not declare" + most(kMaxXmlForeignNames);
  }
  if (elements_.isTooLong()) {
    return u"too many names that the schema does not declare fall into one list of the parser" +
           most(kMaxXmlAlikeElements);
  }
  if (prefixLists_.isTooLong() || namespaceLists_.isTooLong()) {
    return u"too many prefixes or namespaces fall into one list of the parser" +
           most(kMaxXmlAlikeNamespaces);
  }
  return {};
}

}  // namespace praxen::detail
