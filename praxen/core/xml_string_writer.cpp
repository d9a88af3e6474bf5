// The markup that the writer appends, and its escaping.
#include "praxen/core/xml_string_writer.h"

#include <array>
#include <cstdint>
#include <cstring>

#include "praxen/core/error.h"
#include "praxen/core/library.h"
#include "praxen/core/limits.h"

namespace praxen {

namespace {

constexpr int32_t kGrowthStep = 32768;
constexpr int32_t kFirstCapacity = 65536;

// The characters that must not stand in a value, and the references that replace them.
constexpr std::u16string_view Reference(char16_t character, bool attribute) {
  switch (character) {
    case u'&':
      return u"&amp;";
    case u'<':
      return u"&lt;";
    case u'>':
      return u"&gt;";
    case u'"':
      return attribute ? u"&quot;" : u"";
    case u'\'':
      return attribute ? u"&apos;" : u"";
    default:
      return {};
  }
}

template <bool Attribute>
constexpr bool IsEscaped(char16_t character) {
  return !Reference(character, Attribute).empty();
}

// Characters that are looked at together.
using Block = uint16_t __attribute__((vector_size(16)));
constexpr size_t kBlock = sizeof(Block) / sizeof(char16_t);

Block IsEach(Block block, uint16_t character) {
  const Block wanted = {character, character, character, character,
                        character, character, character, character};
  return reinterpret_cast<Block>(block == wanted);
}

template <bool Attribute>
bool BlockHasEscaped(const char16_t* characters) {
  Block block;
  std::memcpy(&block, characters, sizeof block);
  Block found = IsEach(block, u'&') | IsEach(block, u'<') | IsEach(block, u'>');
  if constexpr (Attribute) found |= IsEach(block, u'"') | IsEach(block, u'\'');
  std::array<uint64_t, 2> halves;
  std::memcpy(halves.data(), &found, sizeof found);
  return (halves[0] | halves[1]) != 0;
}

// The index of the first character that must be escaped, or the length.
template <bool Attribute>
size_t FindEscaped(std::u16string_view value) {
  const size_t size = value.size();
  size_t at = 0;
  while (at + kBlock <= size && !BlockHasEscaped<Attribute>(value.data() + at)) at += kBlock;
  // The last block may overlap the one before.
  if (size >= kBlock && at + kBlock > size &&
      !BlockHasEscaped<Attribute>(value.data() + size - kBlock)) {
    return size;
  }
  while (at < size && !IsEscaped<Attribute>(value[at])) ++at;
  return at;
}

char16_t* Copy(std::u16string_view characters, char16_t* to) {
  return to + characters.copy(to, characters.size());
}

}  // namespace

XMLStringWriter::XMLStringWriter() {
  CountObject();
  buffer_.BufferBump(kGrowthStep);
  buffer_.Capacity(kFirstCapacity);
}

XMLStringWriter::~XMLStringWriter() { UncountObject(); }

void XMLStringWriter::WriteStartDocument() {
  buffer_.Reset();
  depth_ = 0;
  buffer_.Append(u"<?xml version='1.0' encoding='UTF-16'?>");
}

void XMLStringWriter::WriteStartRootElement(std::u16string_view name) {
  WriteLineBreak();
  buffer_.Append(u"<").Append(name).Append(u" xmlns='PraxenSchema3_0'");
  OpenElement();
}

void XMLStringWriter::WriteStartElement(std::u16string_view name) {
  CloseStartTag();
  buffer_.Append(u"<").Append(name);
  OpenElement();
}

void XMLStringWriter::WriteEndElement(std::u16string_view name) {
  if (element_empty_) {
    buffer_.Append(u" />");
    start_tag_open_ = element_empty_ = false;
  } else {
    buffer_.Append(u"</").Append(name).Append(u">");
  }
  --depth_;
  WriteLineBreak();
}

void XMLStringWriter::WriteAttributeString(std::u16string_view name, std::u16string_view value) {
  const size_t plain = FindEscaped<true>(value);
  char16_t* end = buffer_.Extend(name.size() + plain + 3);
  *end++ = u' ';
  end = Copy(name, end);
  *end++ = u'=';
  *end++ = u'\'';
  Copy(value.substr(0, plain), end);
  if (plain < value.size()) WriteEscaped<true>(value.substr(plain));
  *buffer_.Extend(1) = u'\'';
}

void XMLStringWriter::WriteElementString(std::u16string_view name, std::u16string_view value) {
  CloseStartTag();
  buffer_.Append(u"<").Append(name).Append(u">");
  WriteEscaped<false>(value);
  buffer_.Append(u"</").Append(name).Append(u">");
  WriteLineBreak();
  start_tag_open_ = element_empty_ = false;
}

void XMLStringWriter::WriteElementValue(std::u16string_view value) {
  StartContent();
  WriteEscaped<false>(value);
}

void XMLStringWriter::WriteXMLElementValue(std::u16string_view markup) {
  StartContent();
  buffer_.Append(markup);
}

void XMLStringWriter::WriteLineBreak() {
  if (IncludeCRLFInXML()) buffer_.Append(u"\r\n");
}

void XMLStringWriter::CloseStartTag() {
  if (!start_tag_open_) return;
  buffer_.Append(u">");
  WriteLineBreak();
}

void XMLStringWriter::StartContent() {
  if (start_tag_open_) buffer_.Append(u" >");
  start_tag_open_ = element_empty_ = false;
}

void XMLStringWriter::OpenElement() {
  if (depth_ == kDeepestNesting) throw NestedTooDeep();
  ++depth_;
  start_tag_open_ = element_empty_ = true;
}

// Runs without a character to escape are copied whole.
template <bool Attribute>
void XMLStringWriter::WriteEscaped(std::u16string_view value) {
  for (;;) {
    const size_t plain = FindEscaped<Attribute>(value);
    buffer_.Append(value.substr(0, plain));
    if (plain == value.size()) return;
    buffer_.Append(Reference(value[plain], Attribute));
    value.remove_prefix(plain + 1);
  }
}

}  // namespace praxen
