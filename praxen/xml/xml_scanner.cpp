// The scanner: fast where characters stand for themselves, exact where they do not.
#include "praxen/xml/xml_scanner.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

#include "praxen/core/ascii.h"
#include "praxen/xml/xml_limits.h"

namespace praxen::detail {
namespace {

constexpr char16_t kByteOrderMark = 0xFEFF;

constexpr bool IsNameStart(char16_t c) {
  const char16_t lower = c | 0x20;
  return (lower >= u'a' && lower <= u'z') || c == u'_';
}

constexpr std::array<bool, 128> kNameCharacters = [] {
  std::array<bool, 128> are{};
  for (size_t i = 0; i < are.size(); ++i) {
    const auto c = static_cast<char16_t>(i);
    are[i] = IsNameStart(c) || IsDigitAscii(c) || c == u'-' || c == u'.';
  }
  return are;
}();

bool IsNameCharacter(char16_t c) { return c < kNameCharacters.size() && kNameCharacters[c]; }

// The end of the name that begins there; the beginning where none does.
const char16_t* NameEnd(const char16_t* begin) {
  if (!IsNameStart(*begin)) return begin;
  const char16_t* end = begin + 1;
  while (IsNameCharacter(*end)) ++end;
  return end;
}

bool IsCharacter(uint32_t c) {
  if (c < 0x20) return c == u'\t' || c == u'\n' || c == u'\r';
  return c < 0xD800 || (c > 0xDFFF && c < 0xFFFE) || (c > 0xFFFF && c <= 0x10FFFF);
}

// The digits of a reference's number in that base, moving past them; 0 for none and for too many.
uint32_t ReadDigits(const char16_t*& next, uint32_t base) {
  uint32_t number = 0;
  for (;; ++next) {
    const auto lower = static_cast<char16_t>(*next | 0x20);
    uint32_t digit = base;
    if (IsDigitAscii(*next)) digit = static_cast<uint32_t>(*next - u'0');
    if (lower >= u'a' && lower <= u'f') digit = static_cast<uint32_t>(lower - u'a' + 10);
    if (digit >= base) return number;
    number = number * base + digit;
    if (number > 0x10FFFF) return 0;
  }
}

}  // namespace

// Far below what makes the parser's tables slow, and below what a document may have.
class XmlScanner::Names {
 public:
  void Add(std::u16string_view name) {
    size_t place = 31 * name.size() + size_t{7} * name.front() + name.back();
    for (;; ++place) {
      std::u16string_view& known = names_[place % names_.size()];
      if (known == name) return;
      if (!known.empty()) continue;
      if (++count_ > kMost || name.size() > kLongest) throw XmlGivenUp();
      known = name;
      return;
    }
  }

 private:
  static constexpr size_t kMost = 150;
  static constexpr size_t kLongest = 1'000;

  std::array<std::u16string_view, 2 * kMost> names_;
  size_t count_ = 0;
};

XmlScanner::XmlScanner(const Text& text) : next_(text.data()), end_(text.data() + text.size()) {
  if (text.size() > kMaxXmlDocumentLength) throw XmlGivenUp();
}

XmlScanner::~XmlScanner() = default;

bool XmlScanner::Takes(std::u16string_view characters) {
  const size_t size = characters.size();
  const bool isLonger = static_cast<size_t>(end_ - next_) < size;
  if (isLonger || !AreSame(next_, characters.data(), size)) return false;
  next_ += size;
  return true;
}

void XmlScanner::ReadProlog() {
  if (*next_ == kByteOrderMark) ++next_;
  if (Takes(u"<?xml")) ReadDeclaration();
  do SkipBlanks();
  while (SkipComment());
}

// Which encoding is declared plays no part.
void XmlScanner::ReadDeclaration() {
  const auto takeValue = [&](auto isPart) {
    Expect(u"=");
    const char16_t quote = *next_;
    if (quote != u'"' && quote != u'\'') throw XmlGivenUp();
    const char16_t* const begin = ++next_;
    while (isPart(*next_)) ++next_;
    if (next_ == begin || *next_ != quote) throw XmlGivenUp();
    return std::u16string_view(begin, static_cast<size_t>(next_++ - begin));
  };
  Expect(u" version");
  if (takeValue([](char16_t c) { return IsDigitAscii(c) || c == u'.'; }) != u"1.0") {
    throw XmlGivenUp();
  }
  if (Takes(u" encoding")) {
    if (!IsNameStart(takeValue(IsNameCharacter).front())) throw XmlGivenUp();
  }
  SkipBlanks();
  Expect(u"?>");
}

void XmlScanner::ReadEpilog() {
  do SkipBlanks();
  while (SkipComment());
  if (next_ != end_) throw XmlGivenUp();
}

bool XmlScanner::TakeComment() {
  if (!Takes(u"<!--")) return false;
  for (;;) {
    next_ = FindSpecial<XmlBreaks::Ordinary>(next_, end_, u'-', u'-', u'-');
    if (*next_ == u'-' && next_[1] == u'-') break;
    SkipOrdinary();
  }
  Expect(u"-->");
  return true;
}

std::u16string_view XmlScanner::PeekName() const {
  const char16_t* const begin = next_ + 1;
  if (*next_ != u'<') throw XmlGivenUp();
  const char16_t* const end = NameEnd(begin);
  const bool ends = *end == u'>' || *end == u'/' || IsXmlBlank(*end);
  if (end == begin || !ends) throw XmlGivenUp();
  return {begin, static_cast<size_t>(end - begin)};
}

bool XmlScanner::FindAttribute() {
  const char16_t* const before = next_;
  SkipBlanks();
  if (*next_ == u'>' || *next_ == u'/') return false;
  if (next_ == before) throw XmlGivenUp();
  return true;
}

std::u16string_view XmlScanner::TakeAttribute() {
  const char16_t* const begin = next_;
  const char16_t* const end = NameEnd(begin);
  if (end == begin) throw XmlGivenUp();
  next_ = end;
  if (*next_ != u'=') SkipBlanks();
  if (*next_++ != u'=') throw XmlGivenUp();
  return {begin, static_cast<size_t>(end - begin)};
}

std::u16string_view XmlScanner::AttributeValue() {
  if (IsXmlBlank(*next_)) SkipBlanks();
  const char16_t quote = *next_;
  if (quote != u'\'' && quote != u'"') throw XmlGivenUp();
  const char16_t* const begin = ++next_;
  const char16_t* const special = FindInValue(begin, quote);
  std::u16string_view value;
  if (*special == quote) {
    value = {begin, static_cast<size_t>(special - begin)};
    next_ = special + 1;
  } else {
    value = DecodedValue(begin, special);
  }
  // As it is written it may be longer, which is the other way's to tell.
  if (static_cast<size_t>(next_ - begin) > kMaxXmlAttributeLength) throw XmlGivenUp();
  return value;
}

// A line break or a tab that stands as such is a blank; one that is referred to stays.
std::u16string_view XmlScanner::DecodedValue(const char16_t* begin, const char16_t* special) {
  const char16_t quote = begin[-1];
  decoded_.clear();
  for (;;) {
    decoded_.append(begin, special);
    next_ = special;
    switch (*next_) {
      case u'<':
        throw XmlGivenUp();
      case u'&':
        AppendReference();
        break;
      case u'\r':
        next_ += next_[1] == u'\n' ? 1 : 0;
        [[fallthrough]];
      case u'\n':
      case u'\t':
        decoded_.push_back(u' ');
        ++next_;
        break;
      default: {
        const char16_t* const pair = next_;
        SkipOrdinary();
        decoded_.append(pair, next_);
      }
    }
    begin = next_;
    special = FindInValue(begin, quote);
    if (*special != quote) continue;
    decoded_.append(begin, special);
    next_ = special + 1;
    return decoded_;
  }
}

bool XmlScanner::EndStartTag() {
  const bool isEmpty = *next_ == u'/';
  if (isEmpty) ++next_;
  if (*next_++ != u'>') throw XmlGivenUp();
  return !isEmpty;
}

const char16_t* XmlScanner::FindInValue(const char16_t* begin, char16_t quote) const {
  return FindSpecial<XmlBreaks::Special>(begin, end_, quote, u'<', u'&');
}

// Moves to what ends a run of characters that stand for themselves.
void XmlScanner::SkipCharacters() {
  for (;;) {
    next_ = FindSpecial<XmlBreaks::Ordinary>(next_, end_, u'<', u'&', u']');
    if (*next_ == u'<' || *next_ == u'&' || *next_ == u'\r') return;
    if (*next_ == u']' && next_[1] == u']' && next_[2] == u'>') throw XmlGivenUp();
    SkipOrdinary();
  }
}

std::u16string_view XmlScanner::Content() {
  const char16_t* const begin = next_;
  SkipCharacters();
  if (!isAtEndTag()) return DecodedContent(begin);
  return {begin, static_cast<size_t>(next_ - begin)};
}

// What is written otherwise than it is read: references, line breaks and sections.
std::u16string_view XmlScanner::DecodedContent(const char16_t* begin) {
  decoded_.clear();
  for (;;) {
    decoded_.append(begin, next_);
    if (isAtEndTag()) return decoded_;
    if (*next_ == u'<') {
      AppendSection();
    } else if (*next_ == u'&') {
      AppendReference();
    } else {
      AppendBreak();
    }
    begin = next_;
    SkipCharacters();
  }
}

// However a line ends, it is read as a line feed.
void XmlScanner::AppendBreak() {
  decoded_.push_back(u'\n');
  next_ += next_[1] == u'\n' ? 2 : 1;
}

void XmlScanner::AppendReference() {
  struct Entity {
    std::u16string_view reference;
    char16_t character;
  };
  static constexpr Entity kEntities[] = {
      {u"&lt;", u'<'}, {u"&gt;", u'>'}, {u"&amp;", u'&'}, {u"&quot;", u'"'}, {u"&apos;", u'\''}};
  for (const Entity& entity : kEntities) {
    if (next_[1] == entity.reference[1] && Takes(entity.reference)) {
      return decoded_.push_back(entity.character);
    }
  }
  Expect(u"&#");
  const uint32_t base = Takes(u"x") ? 16 : 10;
  const uint32_t number = ReadDigits(next_, base);
  Expect(u";");
  if (!IsCharacter(number)) throw XmlGivenUp();
  if (number <= 0xFFFF) return decoded_.push_back(static_cast<char16_t>(number));
  decoded_.push_back(static_cast<char16_t>(0xD7C0 + (number >> 10)));
  decoded_.push_back(static_cast<char16_t>(0xDC00 + (number & 0x3FF)));
}

void XmlScanner::AppendSection() {
  Expect(u"<![CDATA[");
  for (const char16_t* begin = next_;; begin = next_) {
    while (*next_ != u'\r' && (*next_ != u']' || next_[1] != u']' || next_[2] != u'>')) {
      SkipOrdinary();
      next_ = FindSpecial<XmlBreaks::Ordinary>(next_, end_, u']', u']', u']');
    }
    decoded_.append(begin, next_);
    if (*next_ == u']') break;
    AppendBreak();
  }
  next_ += 3;
}

// Passes over a character that stands for itself, which may be a pair of surrogates.
void XmlScanner::SkipOrdinary() {
  const char16_t c = *next_;
  if (!IsCharacter(c)) {
    if (c < 0xD800 || c > 0xDBFF || next_[1] < 0xDC00 || next_[1] > 0xDFFF) throw XmlGivenUp();
    ++next_;
  }
  ++next_;
}

void XmlScanner::TakeEndTag(std::u16string_view name) {
  if (!isAtEndTag()) throw XmlGivenUp();
  next_ += 2;
  Expect(name);
  SkipBlanks();
  if (*next_++ != u'>') throw XmlGivenUp();
}

std::u16string_view XmlScanner::TextOf(std::u16string_view name) {
  if (FindAttribute()) throw XmlGivenUp();
  if (!EndStartTag()) return {};
  const std::u16string_view text = Content();
  TakeEndTag(name);
  return text;
}

void XmlScanner::CountName(std::u16string_view name) {
  if (!names_) names_ = std::make_unique<Names>();
  names_->Add(name);
}

std::u16string_view XmlScanner::Markup(size_t depth) {
  constexpr size_t kMostAttributes = 50;
  const char16_t* const begin = next_;
  std::vector<std::u16string_view> open, attributes;
  do {
    if (isAtEndTag()) {
      TakeEndTag(open.back());
      open.pop_back();
    } else {
      const std::u16string_view name = PeekName();
      CountName(name);
      TakeName(name);
      attributes.clear();
      while (FindAttribute()) {
        const std::u16string_view attribute = TakeAttribute();
        const bool isKnown = std::ranges::find(attributes, attribute) != attributes.end();
        if (isKnown || attribute == u"xmlns" || attributes.size() == kMostAttributes) {
          throw XmlGivenUp();
        }
        CountName(attribute);
        attributes.push_back(attribute);
        AttributeValue();
      }
      if (depth + open.size() >= kMaxXmlDepth) throw XmlGivenUp();
      if (EndStartTag()) open.push_back(name);
    }
    if (!open.empty()) SkipMarkupText();
  } while (!open.empty());
  return {begin, static_cast<size_t>(next_ - begin)};
}

// Moves to the next tag.
void XmlScanner::SkipMarkupText() {
  for (;; SkipCharacters()) {
    decoded_.clear();
    if (*next_ == u'&') {
      AppendReference();
    } else if (*next_ == u'\r') {
      ++next_;
    } else if (next_[0] == u'<' && next_[1] == u'!') {
      if (!SkipComment()) AppendSection();
    } else if (*next_ == u'<') {
      return;
    }
  }
}

}  // namespace praxen::detail
