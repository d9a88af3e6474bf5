// The scan for markup, and a table of changes to what it finds.
#include "tests/support/xml_mutation.h"

#include <algorithm>

#include "praxen/core/text.h"

namespace praxen::detail {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

// Values that conversions, escaping and names treat in ways of their own.
constexpr std::string_view kValues[] = {
    "",       " ",     "0",          "1",           "true",        "False",       "-1",
    "+7",     " 12 ",  "2147483647", "2147483648",  "-2147483648", "1e308",       "1E999",
    "-0",     ".5",    "1,5",        "nan",         "inf",         "0x10",        "&#10;",
    "&#13;x", "a&#9;", "&lt;",       "&amp;lt;",    "&amp;amp;",   "&apos;",      "&quot;\"",
    "a.b.c",  ".a",    "a.",         "a..b",        "in",          "out",         "private",
    "lowest", "Left",  "Invisible",  "&#x10FFFF;z", "\xC3\xA4",    "\xE2\x82\xAC"};

constexpr std::string_view kInsertions[] = {"<!---->",
                                            "<!-- a -->",
                                            "<![CDATA[]]>",
                                            "<![CDATA[ <a>&amp; ]]>",
                                            "<?target?>",
                                            "<?p a='b'?>",
                                            "&amp;",
                                            "&lt;a/&gt;",
                                            "&#13;",
                                            "&#x20AC;",
                                            "&unknown;",
                                            "\r\n",
                                            " ",
                                            "text",
                                            "<Unknown/>",
                                            "<Description>d</Description>",
                                            "<Description/>",
                                            "]]&gt;",
                                            "<a xmlns='other'/>"};

constexpr std::string_view kAttributes[] = {
    " xmlns='other'",
    " xmlns=''",
    " xmlns='PraxenSchema3_0'",
    " xmlns:p='other'",
    " p:a='b'",
    " xml:space='preserve'",
    " xml:lang='en'",
    " Unknown='1'",
    " Name='n'",
    " Type='t'",
    " Hidden='1'",
    " xsi:nil='true'",
    " xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='a b'"};

// Names of elements that the schema declares, with attributes and without, and of one that it does
// not.
constexpr std::string_view kElements[] = {"Variable", "Variables", "ConVariable", "ST_Code",
                                          "Unknown"};

class Scanner {
 public:
  explicit Scanner(std::string_view xml) : xml_(xml) {}

  MarkupSpans Scan() {
    while (at_ < xml_.size()) {
      if (xml_[at_] != '<') {
        ScanText();
      } else if (Passes("<!--", "-->") || Passes("<![CDATA[", "]]>") || Passes("<?", "?>")) {
        continue;
      } else if (xml_.substr(at_).starts_with("</")) {
        ScanEndTag();
      } else {
        ScanStartTag();
      }
    }
    std::erase_if(found_.elements, [](const ElementSpans& spans) { return spans.all.end == 0; });
    return std::move(found_);
  }

 private:
  size_t Find(std::string_view characters, size_t from) const {
    return std::min(xml_.find_first_of(characters, from), xml_.size());
  }
  size_t FindNot(std::string_view characters, size_t from) const {
    return std::min(xml_.find_first_not_of(characters, from), xml_.size());
  }

  bool Passes(std::string_view begin, std::string_view end) {
    if (!xml_.substr(at_).starts_with(begin)) return false;
    const size_t found = xml_.find(end, at_ + begin.size());
    at_ = found == std::string_view::npos ? xml_.size() : found + end.size();
    return true;
  }

  void ScanText() {
    const size_t end = Find("<", at_);
    if (!open_.empty() && FindNot(kBlanks, at_) < end) found_.texts.push_back({at_, end});
    at_ = end;
  }

  void ScanEndTag() {
    const Span name{at_ + 2, Find(">", at_)};
    at_ = std::min(name.end + 1, xml_.size());
    if (open_.empty()) return;
    ElementSpans& element = found_.elements[open_.back()];
    open_.pop_back();
    element.all.end = at_;
    element.endName = name;
  }

  void ScanStartTag() {
    const Span name{at_ + 1, Find(" \t\r\n/>", at_ + 1)};
    found_.elements.push_back({{at_, 0}, name});
    at_ = name.end;
    while (ScanAttribute()) continue;
    const bool isEmpty = xml_.substr(at_).starts_with("/");
    at_ = std::min(Find(">", at_) + 1, xml_.size());
    if (isEmpty) {
      found_.elements.back().all.end = at_;
    } else {
      open_.push_back(found_.elements.size() - 1);
    }
  }

  bool ScanAttribute() {
    const size_t begin = at_;
    const size_t name = FindNot(kBlanks, at_);
    const size_t equals = Find("=/><", name);
    if (name == begin || equals >= xml_.size() || xml_[equals] != '=') {
      at_ = std::min(name, xml_.size());
      return false;
    }
    const size_t quote = FindNot(kBlanks, equals + 1);
    if (quote >= xml_.size()) return false;
    const size_t end = Find(xml_.substr(quote, 1), quote + 1);
    found_.attributes.push_back({begin, std::min(end + 1, xml_.size())});
    found_.values.push_back({quote + 1, std::max(end, quote + 1)});
    at_ = found_.attributes.back().end;
    return true;
  }

  const std::string_view xml_;
  size_t at_ = 0;
  std::vector<size_t> open_;
  MarkupSpans found_;
};

std::string Replaced(std::string_view xml, Span span, std::string_view with) {
  return std::string(xml).replace(span.begin, span.end - span.begin, with);
}

std::string Inserted(std::string_view xml, size_t at, std::string_view what) {
  return Replaced(xml, {at, at}, what);
}

struct Change {
  std::string_view xml;
  const MarkupSpans& markup;
  Random& random;

  // The document element is spared, where there are others.
  const ElementSpans& Element() const {
    const auto& elements = markup.elements;
    return elements.size() < 2 ? elements.front() : elements[1 + random.Below(elements.size() - 1)];
  }
  const ElementSpans& AnyElement() const { return random.OneOf(markup.elements); }
  std::string_view AnyValue() const {
    if (markup.values.empty() || random.OneIn(2)) return random.OneOf(kValues);
    return random.OneOf(markup.values).In(xml);
  }
  std::string Renamed(const ElementSpans& element, std::string_view name) const {
    // The end tag comes first, so that the start tag's place stays true.
    const Span& end = element.endName;
    const std::string changed = end.end == 0 ? std::string(xml) : Replaced(xml, end, name);
    return Replaced(changed, element.name, name);
  }
};

// Each gives the changed text, or an empty one where there is nothing to change.
using Mutation = std::string (*)(const Change& change);

std::string DropElement(const Change& change) {
  return Replaced(change.xml, change.Element().all, {});
}

std::string CopyElement(const Change& change) {
  return Inserted(change.xml, change.Element().all.begin, change.Element().all.In(change.xml));
}

std::string DuplicateElement(const Change& change) {
  const Span element = change.Element().all;
  return Inserted(change.xml, element.end, element.In(change.xml));
}

std::string SwapElements(const Change& change) {
  Span first = change.Element().all, second = change.Element().all;
  if (first.begin > second.begin) std::swap(first, second);
  if (first.end > second.begin) return {};
  const std::string changed = Replaced(change.xml, second, first.In(change.xml));
  return Replaced(changed, first, second.In(change.xml));
}

std::string Unwrap(const Change& change) {
  const Span inner = change.Element().all, outer = change.Element().all;
  return Replaced(change.xml, outer, inner.In(change.xml));
}

std::string MakeRoot(const Change& change) {
  const ElementSpans& element = change.Element();
  return Inserted(element.all.In(change.xml), element.name.end - element.all.begin,
                  " xmlns='PraxenSchema3_0'");
}

std::string DropAttribute(const Change& change) {
  if (change.markup.attributes.empty()) return {};
  return Replaced(change.xml, change.random.OneOf(change.markup.attributes), {});
}

std::string CopyAttribute(const Change& change) {
  const auto& attributes = change.markup.attributes;
  const bool own = !attributes.empty() && change.random.OneIn(2);
  const std::string_view attribute =
      own ? change.random.OneOf(attributes).In(change.xml) : change.random.OneOf(kAttributes);
  return Inserted(change.xml, change.AnyElement().name.end, attribute);
}

std::string ChangeValue(const Change& change) {
  if (change.markup.values.empty()) return {};
  return Replaced(change.xml, change.random.OneOf(change.markup.values), change.AnyValue());
}

std::string ChangeText(const Change& change) {
  if (change.markup.texts.empty()) return {};
  return Replaced(change.xml, change.random.OneOf(change.markup.texts), change.AnyValue());
}

std::string InsertIntoText(const Change& change) {
  if (change.markup.texts.empty()) return {};
  const Span text = change.random.OneOf(change.markup.texts);
  const size_t at = text.begin + change.random.Below(text.end - text.begin + 1);
  return Inserted(change.xml, at, change.random.OneOf(kInsertions));
}

std::string InsertBehindName(const Change& change) {
  return Inserted(change.xml, change.AnyElement().name.end, change.random.OneOf(kInsertions));
}

std::string ChangeCase(const Change& change) {
  const ElementSpans& element = change.AnyElement();
  std::string name(element.name.In(change.xml));
  for (char& character : name) {
    if (change.random.OneIn(name.size())) character = static_cast<char>(character ^ 0x20);
  }
  return change.Renamed(element, name);
}

std::string Rename(const Change& change) {
  const bool own = change.random.OneIn(2);
  return change.Renamed(change.AnyElement(), own ? change.AnyElement().name.In(change.xml)
                                                 : change.random.OneOf(kElements));
}

// Puts an element into a namespace by a prefix that it declares itself.
std::string AddPrefix(const Change& change) {
  const ElementSpans& element = change.AnyElement();
  const std::string name = "p:" + std::string(element.name.In(change.xml));
  const std::string_view space = change.random.OneIn(8) ? "other" : "PraxenSchema3_0";
  const std::string changed = change.Renamed(element, name);
  return Inserted(changed, element.name.end + 2, " xmlns:p='" + std::string(space) + "'");
}

// Those that mostly leave a document valid come often.
constexpr Mutation kMutations[] = {ChangeValue,      ChangeValue,      ChangeValue, ChangeValue,
                                   ChangeText,       ChangeText,       ChangeText,  ChangeText,
                                   DuplicateElement, DuplicateElement, CopyElement, CopyElement,
                                   SwapElements,     SwapElements,     DropElement, DropElement,
                                   InsertIntoText,   InsertIntoText,   AddPrefix,   AddPrefix,
                                   DropAttribute,    CopyAttribute,    Unwrap,      MakeRoot,
                                   InsertBehindName, ChangeCase,       Rename};

constexpr std::u16string_view kCharacters =
    u"<>&'\"=/!?[]-;:#x \t\r\n0aA.,\x01\x7F\x85\xA0\u2028\uFEFF\uFFFD\uFFFE\xD83D\xDE00";

constexpr std::u16string_view kDeclarations[] = {
    u"",
    u" ",
    u"\uFEFF",
    u"<?xml version='1.0'?>",
    u"<?xml version=\"1.0\" ?>\n\n",
    u"<?xml version='1.1'?>",
    u"<?xml version='1.2'?>",
    u"<?xml version='1.0' encoding='utf-8'?>",
    u"<?xml version='1.0' encoding='UTF-16LE'?>",
    u"<?xml version='1.0' encoding='latin1'?>",
    u"<?xml version='1.0' encoding=''?>",
    u"<?xml version='1.0' encoding='x y'?>",
    u"<?xml version='1.0' standalone='yes'?>",
    u"<?xml version='1.0' standalone='maybe'?>",
    u"<?xml encoding='UTF-16'?>",
    u"<?xml encoding='UTF-16' version='1.0'?>",
    u"<?xml version='1.0'encoding='UTF-16'?>",
    u"<?xml version='1.0' version='1.0'?>",
    u"<?xml version='1.0' other='1'?>",
    u"<?xml  version = '1.0'\r\nencoding\t=\"UTF-16\"?>",
    u"<?xml?>",
    u"<?XML version='1.0'?>",
    u"<?xml-a b?>",
    u" <?xml version='1.0'?>",
    u"<!DOCTYPE a>",
    u"<!-- a -->"};

constexpr std::u16string_view kEnds[] = {
    u" ",     u"\r\n",         u"<!-- a -->", u"<?a b?>", u"a", u"<a/>",
    u"&#10;", u"<![CDATA[]]>", u"</Program>", u"\uFEFF",  u"<", std::u16string_view(u"\0", 1)};

std::u16string WithOtherDeclaration(const std::u16string& text, Random& random) {
  constexpr std::u16string_view kEnd = u"?>";
  const size_t end = text.starts_with(u"<?xml") ? text.find(kEnd) : text.npos;
  const size_t root = end == text.npos ? 0 : end + kEnd.size();
  return std::u16string(random.OneOf(kDeclarations)) + text.substr(root);
}

}  // namespace

MarkupSpans FindMarkup(std::string_view xml) { return Scanner(xml).Scan(); }

std::u16string RootName(std::string_view xml) {
  const MarkupSpans markup = FindMarkup(xml);
  if (markup.elements.empty()) return {};
  const std::string_view name = markup.elements.front().name.In(xml);
  return FromUtf8(name.substr(name.find(':') + 1));
}

std::string Mutated(std::string_view xml, Random& random) {
  std::string changed(xml);
  for (size_t count = 1 + random.Below(3); count > 0; --count) {
    const MarkupSpans markup = FindMarkup(changed);
    if (markup.elements.empty()) return {};
    const std::string next = random.OneOf(kMutations)({changed, markup, random});
    if (!next.empty()) changed = next;
  }
  return changed;
}

std::string Spliced(std::string_view xml, std::string_view other, Random& random) {
  const MarkupSpans markup = FindMarkup(xml), others = FindMarkup(other);
  if (markup.elements.size() < 2 || others.elements.size() < 2) return {};
  const Change to{xml, markup, random}, from{other, others, random};
  return Inserted(xml, to.Element().all.begin, from.Element().all.In(other));
}

std::u16string Spoiled(std::u16string text, Random& random) {
  if (random.OneIn(8)) return WithOtherDeclaration(text, random);
  if (random.OneIn(16)) return text.append(random.OneOf(kEnds));
  if (text.empty()) return text;
  const size_t at = random.Below(text.size());
  if (random.OneIn(3)) return text.erase(at, 1);
  const char16_t character = random.OneOf(kCharacters);
  return text.replace(at, random.Below(2), 1, character);
}

}  // namespace praxen::detail
