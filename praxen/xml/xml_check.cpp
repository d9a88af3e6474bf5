// The look over a document before it is parsed.
#include "praxen/xml/xml_check.h"

#include <algorithm>
#include <string>
#include <vector>

#include "praxen/core/numbers.h"
#include "praxen/xml/xml_limits.h"
#include "praxen/xml/xml_markup.h"

namespace praxen::detail {
namespace {

constexpr size_t kNone = std::u16string_view::npos;

bool IsHighSurrogate(char16_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool IsLowSurrogate(char16_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

// Whether the character is one that XML 1.0 does not allow, or half of a pair without the other.
bool IsForbidden(std::u16string_view text, size_t offset) {
  const char16_t c = text[offset];
  if (c < 0x20) return !IsXmlBlank(c);
  if (IsHighSurrogate(c)) return offset + 1 == text.size() || !IsLowSurrogate(text[offset + 1]);
  if (IsLowSurrogate(c)) return offset == 0 || !IsHighSurrogate(text[offset - 1]);
  return c >= 0xFFFE;
}

// The offset of the first forbidden character, or kNone. Blocks of ordinary characters are passed
// over at once.
size_t FindForbidden(std::u16string_view text) {
  constexpr size_t kBlock = 32;
  constexpr uint16_t kOrdinary = 0xD800 - 0x20;
  const char16_t* const characters = text.data();
  for (size_t block = 0; block < text.size(); block += kBlock) {
    const size_t end = std::min(block + kBlock, text.size());
    if (end - block == kBlock) {
      uint16_t special = 0;
      for (size_t i = 0; i < kBlock; ++i) {
        const char16_t c = characters[block + i];
        const auto fromBlank = static_cast<uint16_t>(c - 0x20);
        const bool isOrdinary =
            (fromBlank < kOrdinary) | (c == u'\n') | (c == u'\r') | (c == u'\t');
        special = static_cast<uint16_t>(special | (isOrdinary ? 0 : 1));
      }
      if (special == 0) continue;
    }
    for (size_t i = block; i < end; ++i) {
      if (IsForbidden(text, i)) return i;
    }
  }
  return kNone;
}

std::u16string ForbiddenCharacter(char16_t c) {
  if (IsHighSurrogate(c) || IsLowSurrogate(c)) {
    return u"Unpaired surrogate " + XmlCodePoint(c) + u" is not a character.";
  }
  return u"Character " + XmlCodePoint(c) + u" is not allowed in XML.";
}

std::u16string TooMany(std::u16string_view what, size_t limit) {
  return std::u16string(what) + u"; at most " + DecimalText(limit) + u" are allowed.";
}

std::u16string TooLong(std::u16string_view what, size_t limit) {
  return std::u16string(what) + u" is too long; at most " + DecimalText(limit) +
         u" characters are allowed.";
}

std::u16string OtherVersion(std::u16string_view version) {
  return std::u16string(u"XML version '").append(version) + u"' is not supported; expected '1.0'.";
}

// Keeps count of what is nested.
class NestingCheck {
 public:
  // The reason to refuse the piece, or an empty text.
  std::u16string Check(const XmlMarkup& markup) {
    switch (markup.kind) {
      case XmlMarkupKind::Doctype:
        return u"DTD is prohibited.";
      case XmlMarkupKind::EndTag:
        Leave();
        return {};
      case XmlMarkupKind::StartTag:
      case XmlMarkupKind::EmptyTag:
        return Enter(markup);
      default:
        return {};
    }
  }

 private:
  std::u16string Enter(const XmlMarkup& tag) {
    if (tag.attributes > kMaxXmlAttributes) {
      return TooMany(u"Too many attributes on one element", kMaxXmlAttributes);
    }
    if (tag.longestName > kMaxXmlNameLength) return TooLong(u"A name", kMaxXmlNameLength);
    if (tag.longestValue > kMaxXmlAttributeMarkup) {
      return TooLong(u"An attribute value", kMaxXmlAttributeLength);
    }
    if (namespaces_.size() == kMaxXmlDepth) {
      return TooMany(u"Too many nested elements", kMaxXmlDepth);
    }
    inScope_ += tag.namespaces;
    if (inScope_ > kMaxXmlNamespacesInScope) {
      return TooMany(u"Too many namespace declarations in scope", kMaxXmlNamespacesInScope);
    }
    namespaces_.push_back(tag.namespaces);
    if (tag.kind == XmlMarkupKind::EmptyTag) Leave();
    return {};
  }

  void Leave() {
    if (namespaces_.empty()) return;
    inScope_ -= namespaces_.back();
    namespaces_.pop_back();
  }

  // How many namespaces each open element declares.
  std::vector<uint32_t> namespaces_;
  uint32_t inScope_ = 0;
};

// A processing instruction's name is not limited by the tags' check.
bool HasLongTarget(std::u16string_view instruction) {
  const size_t begin = std::min<size_t>(2, instruction.size());
  const std::u16string_view start = instruction.substr(begin, kMaxXmlNameLength + 1);
  return start.size() > kMaxXmlNameLength &&
         std::none_of(start.begin(), start.end(), [](char16_t c) { return IsXmlBlank(c); });
}

}  // namespace

std::optional<XmlParseError> CheckXmlText(std::u16string_view text) {
  const auto refuse = [&](std::u16string sentence, size_t offset) {
    return MakeXmlError(std::move(sentence), PlaceAt(text, offset));
  };
  if (text.size() > kMaxXmlDocumentLength) {
    return MakeXmlError(TooLong(u"The document", kMaxXmlDocumentLength), {});
  }
  const size_t forbidden = FindForbidden(text);
  if (forbidden != kNone) return refuse(ForbiddenCharacter(text[forbidden]), forbidden);

  NestingCheck nesting;
  bool blank = true;
  if (text.starts_with(u"<?xml") && text.size() > 5 && IsXmlBlank(text[5])) {
    const XmlRawAttribute version = NextXmlAttribute(text.substr(0, text.find(u'>')), 5);
    if (version.name == u"version" && version.value != u"1.0") {
      return refuse(OtherVersion(version.value), version.offset);
    }
  }
  for (XmlMarkupReader reader(text); reader.Next();) {
    const XmlMarkup& markup = reader.markup();
    if (markup.kind != XmlMarkupKind::Text) blank = false;
    if (markup.kind == XmlMarkupKind::Instruction &&
        HasLongTarget(text.substr(markup.begin, markup.end - markup.begin))) {
      return refuse(TooLong(u"A name", kMaxXmlNameLength), markup.begin);
    }
    std::u16string sentence = nesting.Check(markup);
    if (!sentence.empty()) return refuse(std::move(sentence), markup.begin);
  }
  if (blank && IsXmlBlank(text)) {
    return refuse(u"The text is empty; a root element was expected.", 0);
  }
  return std::nullopt;
}

}  // namespace praxen::detail
