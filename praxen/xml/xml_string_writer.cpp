// The markup that the writer appends, and its escaping.
#include "praxen/xml/xml_string_writer.h"

#include <atomic>
#include <bit>
#include <cstdint>
#include <cstring>
#include <utility>

#include "praxen/core/counters.h"
#include "praxen/core/error.h"
#include "praxen/core/thread_state.h"
#include "praxen/xml/xml_escape.h"
#include "praxen/xml/xml_limits.h"

namespace praxen::detail {

namespace {

constinit std::atomic<bool> include_line_breaks = true;

constexpr int32_t kGrowthStep = 32768;
constexpr int32_t kFirstCapacity = 65536;

template <bool Attribute>
constexpr bool IsEscaped(char16_t character) {
  constexpr std::u16string_view kEscaped = Attribute ? kEscapedInValues : kEscapedInText;
  return [&]<size_t... Index>(std::index_sequence<Index...>) {
    return ((character == kEscaped[Index]) || ...);
  }
  (std::make_index_sequence<kEscaped.size()>());
}

// Characters that are looked at and copied together.
using Block = uint16_t __attribute__((vector_size(16)));
using HalfBlock = uint64_t;
using Halves = HalfBlock __attribute__((vector_size(16)));
constexpr size_t kBlock = sizeof(Block) / sizeof(char16_t);
constexpr size_t kHalfBlock = kBlock / 2;
constexpr int kBitsOfCharacter = 16;

template <class T>
T Load(const char16_t* from) {
  T characters;
  std::memcpy(&characters, from, sizeof characters);
  return characters;
}

template <class T>
void Save(T characters, char16_t* to) {
  std::memcpy(to, &characters, sizeof characters);
}

[[gnu::always_inline]] inline Block Each(uint16_t character) { return Block{} + character; }

[[gnu::always_inline]] inline Block IsEach(Block block, uint16_t character) {
  return reinterpret_cast<Block>(block == Each(character));
}

// Which characters of a block are one of two that differ in one bit.
[[gnu::always_inline]] inline Block IsEither(Block block, uint16_t one, uint16_t other) {
  return IsEach(block | Each(one ^ other), one | other);
}

// The index of the first character of a block that must be escaped; `kBlock` when there is none.
template <bool Attribute>
[[gnu::always_inline]] inline size_t FindEscaped(Block block) {
  Block found = IsEither(block, u'<', u'>');
  if constexpr (Attribute) {
    found |= IsEither(block, u'&', u'\'') | IsEach(block, u'"');
  } else {
    found |= IsEach(block, u'&');
  }
  const auto halves = reinterpret_cast<Halves>(found);
  if ((halves[0] | halves[1]) == 0) return kBlock;
  const int bits = halves[0] != 0 ? std::countr_zero(halves[0]) : 64 + std::countr_zero(halves[1]);
  return static_cast<size_t>(bits / kBitsOfCharacter);
}

// Copies the characters before the first that must be escaped, and returns their number. What lies
// after them, up to the length of the value, is of any content.
template <bool Attribute>
[[gnu::always_inline]] inline size_t CopyPlain(std::u16string_view value, char16_t* to) {
  const char16_t* const from = value.data();
  const size_t size = value.size();
  size_t at = 0;
  for (; at + kBlock <= size; at += kBlock) {
    const auto block = Load<Block>(from + at);
    Save(block, to + at);
    const size_t plain = FindEscaped<Attribute>(block);
    if (plain < kBlock) return at + plain;
  }
  if (at == size) return size;
  if (size >= kBlock) {
    // The last block overlaps the one before, which is plain.
    const auto block = Load<Block>(from + size - kBlock);
    Save(block, to + size - kBlock);
    return size - kBlock + FindEscaped<Attribute>(block);
  }
  if (size >= kHalfBlock) {
    // Two halves, which may overlap.
    const auto first = Load<HalfBlock>(from);
    const auto last = Load<HalfBlock>(from + size - kHalfBlock);
    Save(first, to);
    Save(last, to + size - kHalfBlock);
    const size_t plain = FindEscaped<Attribute>(reinterpret_cast<Block>(Halves{first, last}));
    return plain < kHalfBlock ? plain : size - kBlock + plain;
  }
  while (at < size && !IsEscaped<Attribute>(from[at])) {
    to[at] = from[at];
    ++at;
  }
  return at;
}

char16_t* Copy(std::u16string_view characters, char16_t* to) {
  const char16_t* const from = characters.data();
  const size_t size = characters.size();
  if (size >= kBlock) {
    for (size_t at = 0; at + kBlock < size; at += kBlock) Save(Load<Block>(from + at), to + at);
    Save(Load<Block>(from + size - kBlock), to + size - kBlock);
  } else if (size >= kHalfBlock) {
    const auto last = Load<HalfBlock>(from + size - kHalfBlock);
    Save(Load<HalfBlock>(from), to);
    Save(last, to + size - kHalfBlock);
  } else {
    for (size_t at = 0; at < size; ++at) to[at] = from[at];
  }
  return to + size;
}

char16_t* Put(char16_t character, char16_t* to) {
  *to = character;
  return to + 1;
}

// Room for the markup between a name or value and the next, such as ">\r\n</".
constexpr size_t kMostMarkup = 8;

char16_t* LineBreak(char16_t* to) { return IncludeCRLFInXML() ? Put(u'\n', Put(u'\r', to)) : to; }

char16_t* EndTag(std::u16string_view name, char16_t* to) {
  return LineBreak(Put(u'>', Copy(name, Put(u'/', Put(u'<', to)))));
}

}  // namespace

XMLStringWriter::XMLStringWriter(Counting counting) : counting_(counting) {
  buffer_.BufferBump(kGrowthStep);
  buffer_.Capacity(kFirstCapacity);
  if (counting == Counting::Yes) CountObject();
}

XMLStringWriter::~XMLStringWriter() {
  if (counting_ == Counting::Yes) UncountObject();
}

void XMLStringWriter::WriteStartDocument() {
  buffer_.Reset();
  depth_ = 0;
  buffer_.Append(u"<?xml version='1.0' encoding='UTF-16'?>");
}

void XMLStringWriter::WriteStartRootElement(std::u16string_view name) {
  if (IncludeCRLFInXML()) buffer_.Append(u"\r\n");
  buffer_.Append(u"<").Append(name).Append(u" xmlns='PraxenSchema3_0'");
  OpenElement();
}

void XMLStringWriter::WriteStartElement(std::u16string_view name) {
  char16_t* const end = CloseStartTag(buffer_.Reserve(name.size() + kMostMarkup));
  buffer_.EndAt(Copy(name, Put(u'<', end)));
  OpenElement();
}

void XMLStringWriter::WriteEndElement(std::u16string_view name) {
  char16_t* const end = buffer_.Reserve(name.size() + kMostMarkup);
  buffer_.EndAt(element_empty_ ? LineBreak(Copy(u" />", end)) : EndTag(name, end));
  start_tag_open_ = element_empty_ = false;
  --depth_;
}

void XMLStringWriter::WriteAttributeString(std::u16string_view name, std::u16string_view value) {
  if (value.size() > kMaxXmlAttributeLength) throw Overflow();
  char16_t* const end = buffer_.Reserve(name.size() + value.size() + kMostMarkup);
  char16_t* const start = Put(u'\'', Put(u'=', Copy(name, Put(u' ', end))));
  const size_t plain = CopyPlain<true>(value, start);
  if (plain == value.size()) return buffer_.EndAt(Put(u'\'', start + plain));
  buffer_.EndAt(start + plain);
  WriteEscaped<true>(value.substr(plain));
  *buffer_.Extend(1) = u'\'';
}

void XMLStringWriter::WriteElementString(std::u16string_view name, std::u16string_view value) {
  if (depth_ == kMaxXmlDepth) throw NestedTooDeep(kMaxXmlDepth);
  char16_t* const end = CloseStartTag(buffer_.Reserve(name.size() + kMostMarkup));
  buffer_.EndAt(Put(u'>', Copy(name, Put(u'<', end))));
  WriteEscaped<false>(value);
  buffer_.EndAt(EndTag(name, buffer_.Reserve(name.size() + kMostMarkup)));
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

// Ends the start tag of an element that has another inside; `end` has room for it.
char16_t* XMLStringWriter::CloseStartTag(char16_t* end) const {
  return start_tag_open_ ? LineBreak(Put(u'>', end)) : end;
}

void XMLStringWriter::StartContent() {
  if (start_tag_open_) buffer_.Append(u" >");
  start_tag_open_ = element_empty_ = false;
}

void XMLStringWriter::OpenElement() {
  if (depth_ == kMaxXmlDepth) throw NestedTooDeep(kMaxXmlDepth);
  ++depth_;
  start_tag_open_ = element_empty_ = true;
}

template <bool Attribute>
void XMLStringWriter::WriteEscaped(std::u16string_view value) {
  for (;;) {
    char16_t* const end = buffer_.Reserve(value.size());
    const size_t plain = CopyPlain<Attribute>(value, end);
    buffer_.EndAt(end + plain);
    if (plain == value.size()) return;
    buffer_.Append(XmlReference(value[plain]));
    value.remove_prefix(plain + 1);
  }
}

struct DocumentWriter::OfThread final : KeptByThread {
  XMLStringWriter writer{XMLStringWriter::Counting::No};
  bool isWriting = false;
};

DocumentWriter::DocumentWriter()
    : own_(ThreadState::Current().Keep<OfThread>()), writer_(&own_.writer) {
  if (own_.isWriting) {
    further_ = std::make_unique<XMLStringWriter>(XMLStringWriter::Counting::No);
    writer_ = further_.get();
  }
  own_.isWriting = true;
}

DocumentWriter::~DocumentWriter() {
  if (further_ == nullptr) own_.isWriting = false;
}

bool IncludeCRLFInXML() noexcept { return include_line_breaks.load(std::memory_order_relaxed); }

void SetIncludeCRLFInXML(bool include) noexcept {
  include_line_breaks.store(include, std::memory_order_relaxed);
}

}  // namespace praxen::detail
