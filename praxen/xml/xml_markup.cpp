// The walk over the markup of a text.
#include "praxen/xml/xml_markup.h"

#include <algorithm>

namespace praxen::detail {
namespace {

// The offset of `c` at or after `from`, or the length of the text. Looks at a whole block before
// it looks at single characters, which compilers turn into vector instructions.
size_t Find(std::u16string_view text, char16_t c, size_t from) {
  constexpr size_t kBlock = 16;
  const char16_t* const characters = text.data();
  while (text.size() - from >= kBlock) {
    uint16_t found = 0;
    for (size_t i = 0; i < kBlock; ++i) {
      found = static_cast<uint16_t>(found | (characters[from + i] == c ? 1 : 0));
    }
    if (found != 0) break;
    from += kBlock;
  }
  while (from < text.size() && characters[from] != c) ++from;
  return from;
}

bool EndsName(char16_t c) {
  return IsXmlBlank(c) || c == u'>' || c == u'/' || c == u'=' || c == u'"' || c == u'\'';
}

// Where the name that begins at `from` ends.
size_t NameEnd(std::u16string_view tag, size_t from) {
  while (from < tag.size() && !EndsName(tag[from])) ++from;
  return from;
}

}  // namespace

bool IsXmlBlank(std::u16string_view text) {
  return std::all_of(text.begin(), text.end(), [](char16_t c) { return IsXmlBlank(c); });
}

bool DeclaresXmlNamespace(std::u16string_view attributeName) {
  constexpr std::u16string_view kDeclaration = u"xmlns";
  return attributeName.starts_with(kDeclaration) && (attributeName.size() == kDeclaration.size() ||
                                                     attributeName[kDeclaration.size()] == u':');
}

bool XmlMarkupReader::Next() {
  const size_t begin = markup_.end;
  if (begin == text_.size()) return false;
  markup_ = {};
  markup_.begin = begin;
  if (text_[begin] != u'<') {
    markup_.end = Find(text_, u'<', begin);
    return true;
  }
  switch (begin + 1 < text_.size() ? text_[begin + 1] : u'\0') {
    case u'/':
      markup_.kind = XmlMarkupKind::EndTag;
      EndAfter(u">", begin);
      break;
    case u'?':
      markup_.kind = XmlMarkupKind::Instruction;
      EndAfter(u"?>", begin + 2);
      break;
    case u'!':
      ReadDeclaration();
      break;
    default:
      ReadTag();
  }
  return true;
}

void XmlMarkupReader::ReadDeclaration() {
  constexpr std::u16string_view kCData = u"<![CDATA[";
  constexpr std::u16string_view kComment = u"<!--";
  const std::u16string_view rest = text_.substr(markup_.begin);
  if (rest.starts_with(kComment)) {
    markup_.kind = XmlMarkupKind::Comment;
    EndAfter(u"-->", markup_.begin + kComment.size());
  } else if (rest.starts_with(kCData)) {
    markup_.kind = XmlMarkupKind::CData;
    EndAfter(u"]]>", markup_.begin + kCData.size());
  } else {
    markup_.kind = XmlMarkupKind::Doctype;
    EndAfter(u">", markup_.begin);
  }
}

void XmlMarkupReader::ReadTag() {
  markup_.kind = XmlMarkupKind::StartTag;
  size_t nameBegin = markup_.begin + 1;
  size_t at = nameBegin;
  const auto endName = [&] {
    if (at == nameBegin) return;
    const std::u16string_view name = text_.substr(nameBegin, at - nameBegin);
    markup_.longestName = std::max(markup_.longestName, name.size());
    if (DeclaresXmlNamespace(name)) ++markup_.namespaces;
  };
  for (; at < text_.size(); ++at) {
    const char16_t c = text_[at];
    if (c > u'>') continue;
    if (c == u'<') break;
    if (!EndsName(c)) continue;
    endName();
    if (c == u'>') {
      if (text_[at - 1] == u'/') markup_.kind = XmlMarkupKind::EmptyTag;
      markup_.end = at + 1;
      return;
    }
    if (c == u'=') ++markup_.attributes;
    if (c == u'"' || c == u'\'') {
      const size_t close = Find(text_, c, at + 1);
      markup_.longestValue = std::max(markup_.longestValue, close - at - 1);
      at = close;
    }
    nameBegin = at + 1;
  }
  at = std::min(at, text_.size());
  nameBegin = std::min(nameBegin, at);
  endName();
  markup_.end = at;
  markup_.closed = at < text_.size();
}

void XmlMarkupReader::EndAfter(std::u16string_view mark, size_t from) {
  for (from = std::min(from, text_.size());; ++from) {
    from = Find(text_, mark[0], from);
    if (from == text_.size()) break;
    if (text_.substr(from).starts_with(mark)) {
      markup_.end = from + mark.size();
      return;
    }
  }
  markup_.end = text_.size();
  markup_.closed = false;
}

std::u16string_view XmlTagName(std::u16string_view tag) {
  const size_t begin = std::min<size_t>(tag.size(), tag.starts_with(u"</") ? 2 : 1);
  return tag.substr(begin, NameEnd(tag, begin) - begin);
}

XmlRawAttribute NextXmlAttribute(std::u16string_view tag, size_t from) {
  while (from < tag.size() && (IsXmlBlank(tag[from]) || tag[from] == u'/')) ++from;
  if (from >= tag.size() || tag[from] == u'>') return {};
  const size_t nameEnd = NameEnd(tag, from);
  const size_t open = tag.find_first_of(u"'\"", nameEnd);
  if (open == std::u16string_view::npos || nameEnd == from) return {};
  const size_t close = Find(tag, tag[open], open + 1);
  return {tag.substr(from, nameEnd - from), tag.substr(open + 1, close - open - 1), from};
}

}  // namespace praxen::detail
