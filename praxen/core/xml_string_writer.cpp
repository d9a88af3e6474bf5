// The markup that the writer appends, and its escaping.
#include "praxen/core/xml_string_writer.h"

#include <algorithm>
#include <array>
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
constexpr std::array<bool, 64> kEscaped = [] {
  std::array<bool, 64> escaped{};
  for (char16_t character = 0; character < 64; ++character) {
    escaped[character] = !Reference(character, Attribute).empty();
  }
  return escaped;
}();

template <bool Attribute>
bool IsEscaped(char16_t character) {
  return character < 64 && kEscaped<Attribute>[character];
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
  char16_t* end = buffer_.Extend(name.size() + 3);
  *end++ = u' ';
  end = std::copy(name.begin(), name.end(), end);
  *end++ = u'=';
  *end = u'\'';
  WriteEscaped<true>(value);
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

// Runs without a character to escape are copied whole, so a value is read once.
template <bool Attribute>
void XMLStringWriter::WriteEscaped(std::u16string_view value) {
  const auto* run = value.data();
  const auto* const end = run + value.size();
  for (;;) {
    const auto* const stop = std::find_if(run, end, IsEscaped<Attribute>);
    buffer_.Append({run, static_cast<size_t>(stop - run)});
    if (stop == end) return;
    buffer_.Append(Reference(*stop, Attribute));
    run = stop + 1;
  }
}

}  // namespace praxen
