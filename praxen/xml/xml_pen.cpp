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
  while (!value.empty()) {
    const size_t wanted = value.size() + kXmlBlock + following;
    if (wanted > static_cast<size_t>(room.end - room.start)) {
      room = Grow(buffer, room.start, wanted);
    }
    const Reference& reference = kReferences[value.front()];
    CopyBlock(reference.block, room.start);
    room.start += reference.size;
    value.remove_prefix(1);
    const size_t plain = CopyPlain<Place>(value, room.start);
    room.start += plain;
    value.remove_prefix(plain);
  }
  return room;
}

template XmlPen::Room XmlPen::Escape<XmlPlace::Content>(CStringBuilder&, char16_t*,
                                                        std::u16string_view, size_t);
template XmlPen::Room XmlPen::Escape<XmlPlace::Attribute>(CStringBuilder&, char16_t*,
                                                          std::u16string_view, size_t);

}  // namespace praxen::detail
