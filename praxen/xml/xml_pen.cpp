// What the pen does rarely: growing the buffer, and escaping.
#include "praxen/xml/xml_pen.h"

#include <algorithm>
#include <array>

#include "praxen/core/error.h"
#include "praxen/xml/xml_escape.h"

namespace praxen::detail {

namespace {

constexpr std::u16string_view kLineBreak = u"\r\n";

// The reference to a character that is escaped somewhere, as a block.
struct Reference {
  char16_t block[kXmlBlock];
  size_t size;
};

constexpr Reference MakeReference(char16_t character) {
  Reference reference{};
  for (const char16_t c : XmlReference(character)) reference.block[reference.size++] = c;
  return reference;
}

// By the character; those that are escaped are all among them.
constexpr auto kReferences = [] {
  std::array<Reference, u'>' + 1> references{};
  for (const char16_t character : kEscapedInValues) {
    references[character] = MakeReference(character);
  }
  return references;
}();

// Characters that are escaped in one go: two blocks.
constexpr size_t kStep = 2 * kXmlBlock;

// A bit for each character that was found in two blocks.
uint32_t FoundBits(XmlBlock first, XmlBlock second) {
#if defined(__SSE2__)
  const __m128i bytes =
      _mm_packs_epi16(reinterpret_cast<__m128i>(first), reinterpret_cast<__m128i>(second));
  return static_cast<uint32_t>(_mm_movemask_epi8(bytes));
#else
  uint32_t bits = 0;
  for (size_t i = 0; i < kXmlBlock; ++i) {
    bits |= static_cast<uint32_t>(first[i] & 1) << i;
    bits |= static_cast<uint32_t>(second[i] & 1) << (kXmlBlock + i);
  }
  return bits;
#endif
}

void CopyStep(const char16_t* from, char16_t* to) {
  CopyBlock(from, to);
  CopyBlock(from + kXmlBlock, to + kXmlBlock);
}

char16_t* CopyReference(char16_t character, char16_t* to) {
  const Reference& reference = kReferences[character];
  CopyBlock(reference.block, to);
  return to + reference.size;
}

}  // namespace

XmlPiece::XmlPiece(std::u16string_view markup) {
  const bool endsLine = markup.ends_with(u'\n');
  blocks_ = markup.substr(0, markup.size() - (endsLine ? 1 : 0));
  sizes_[false] = blocks_.size();
  if (endsLine) blocks_ += kLineBreak;
  sizes_[true] = blocks_.size();
  constexpr size_t kFewest = 2;
  blocks_.resize(std::max((blocks_.size() + kXmlBlock - 1) / kXmlBlock, kFewest) * kXmlBlock);
}

void XmlPen::Put(std::u16string_view characters) {
  const char16_t* const from = characters.data();
  const size_t size = characters.size();
  if (size >= kXmlBlock) {
    for (size_t at = 0; at + kXmlBlock < size; at += kXmlBlock) {
      CopyBlock(from + at, room_.start + at);
    }
    CopyBlock(from + size - kXmlBlock, room_.start + size - kXmlBlock);
  } else {
    for (size_t at = 0; at < size; ++at) room_.start[at] = from[at];
  }
  room_.start += size;
}

void XmlPen::ThrowOverflow() { throw Overflow(); }

XmlPen::Room XmlPen::Grow(CStringBuilder& buffer, char16_t* end, size_t count) {
  buffer.EndAt(end);
  buffer.Reserve(count);
  return buffer.room();
}

template <XmlPlace Place>
XmlPen::Room XmlPen::Escape(CStringBuilder& buffer, char16_t* end, std::u16string_view value,
                            size_t following) {
  Room room{end, buffer.room().end};
  const auto reserve = [&](size_t count) {
    count += value.size() + following;
    if (count > static_cast<size_t>(room.end - room.start)) [[unlikely]]
      room = Grow(buffer, room.start, count);
  };
  // What follows a character to be escaped is copied as if there were no other in the step, so that
  // the value has to go on as far behind it.
  while (value.size() >= 2 * kStep) {
    reserve(kStep * kXmlBlock);
    const char16_t* const from = value.data();
    const auto first = LoadCharacters<XmlBlock>(from);
    const auto second = LoadCharacters<XmlBlock>(from + kXmlBlock);
    uint32_t bits = FoundBits(Escaped<Place>(first), Escaped<Place>(second));
    CopyStep(from, room.start);
    size_t done = 0;
    for (; bits != 0; bits &= bits - 1) {
      const auto at = static_cast<size_t>(std::countr_zero(bits));
      room.start = CopyReference(from[at], room.start + (at - done));
      done = at + 1;
      CopyStep(from + done, room.start);
    }
    room.start += kStep - done;
    value.remove_prefix(kStep);
  }
  while (true) {
    reserve(kXmlBlock);
    const size_t plain = CopyPlain<Place>(value, room.start);
    room.start += plain;
    value.remove_prefix(plain);
    if (value.empty()) return room;
    room.start = CopyReference(value.front(), room.start);
    value.remove_prefix(1);
  }
}

template XmlPen::Room XmlPen::Escape<XmlPlace::Content>(CStringBuilder&, char16_t*,
                                                        std::u16string_view, size_t);
template XmlPen::Room XmlPen::Escape<XmlPlace::Attribute>(CStringBuilder&, char16_t*,
                                                          std::u16string_view, size_t);

}  // namespace praxen::detail
