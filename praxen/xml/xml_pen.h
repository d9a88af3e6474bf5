// XmlPen, which fills the room of a text buffer with markup and values, escaping as it copies; and
// XmlPiece, markup that was made ready for it.
#ifndef PRAXEN_XML_XML_PEN_H_
#define PRAXEN_XML_XML_PEN_H_

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "praxen/core/string_builder.h"
#include "praxen/xml/xml_limits.h"

namespace praxen::detail {

/// Where the special characters stand that have to be escaped.
enum class XmlPlace : uint8_t { Content, Attribute };

/// Characters that are looked at and copied together.
using XmlBlock = uint16_t __attribute__((vector_size(16)));
inline constexpr size_t kXmlBlock = sizeof(XmlBlock) / sizeof(char16_t);

template <class T>
T LoadCharacters(const char16_t* from) {
  T characters;
  std::memcpy(&characters, from, sizeof characters);
  return characters;
}
template <class T>
void SaveCharacters(T characters, char16_t* to) {
  std::memcpy(to, &characters, sizeof characters);
}
inline void CopyBlock(const char16_t* from, char16_t* to) {
  SaveCharacters(LoadCharacters<XmlBlock>(from), to);
}

/// Markup that is written often, ready to be copied in whole blocks.
class XmlPiece {
 public:
  XmlPiece() : XmlPiece(u"") {}
  /// A "\n" at the end is a line break.
  explicit XmlPiece(std::u16string_view markup);

  /// How much room it needs.
  size_t room() const noexcept { return blocks_.size(); }
  /// Copies it to a place that has the room, and returns the end.
  char16_t* CopyTo(char16_t* to, bool breaksLines) const;

 private:
  /// The markup, with the line break, and more to whole blocks, two at least.
  std::u16string blocks_;
  // By whether lines are broken.
  size_t sizes_[2];
};

/// The tags of an element that holds only text.
struct XmlTags {
  explicit XmlTags(const std::u16string& name)
      : start(u"<" + name + u">"), end(u"</" + name + u">\n") {}

  XmlPiece start, end;
};

/// Fills the room of a buffer; the buffer takes it over with `Finish`, which is left out only when
/// the document is given up. The room for what is put has to be reserved, but for escaped values.
class XmlPen {
 public:
  XmlPen(CStringBuilder& buffer, bool breaksLines)
      : buffer_(&buffer), room_(buffer.room()), breaksLines_(breaksLines) {}

  /// Room for so many characters, and some more for what is copied in whole blocks.
  void Reserve(size_t count) {
    if (count + kMargin > static_cast<size_t>(room_.end - room_.start)) [[unlikely]]
      room_ = Grow(*buffer_, room_.start, count + kMargin);
  }
  void Finish() { buffer_->EndAt(room_.start); }

  void Put(char16_t character) { *room_.start++ = character; }
  void Put(const XmlPiece& piece) { room_.start = piece.CopyTo(room_.start, breaksLines_); }
  /// Of any length.
  void Put(std::u16string_view characters);
  void PutLineBreak() { PutLine(kLineBreak, 0); }
  void PutStartTagEnd() { PutLine(kStartTagEnd, 1); }
  void PutEmptyElementEnd() { PutLine(kEmptyElementEnd, 3); }
  /// What `fill` writes from the place that it is given on; it returns the end.
  template <class Fill>
  void PutFilled(Fill fill) {
    room_.start = fill(room_.start);
  }

  /// A value with what must be escaped in its place. There is room as for the value as it is, and
  /// for so many characters that follow it.
  template <XmlPlace Place>
  [[gnu::always_inline]] void PutValue(std::u16string_view value, size_t following) {
    const size_t plain = CopyPlain<Place>(value, room_.start);
    room_.start += plain;
    if (plain < value.size()) [[unlikely]]
      room_ = Escape<Place>(*buffer_, room_.start, value.substr(plain), following + kMargin);
  }

  // What follows reserves its room.

  /// Raises `Overflow` for a value longer than `kMaxXmlAttributeLength`.
  [[gnu::always_inline]] void PutAttribute(const XmlPiece& start, std::u16string_view value) {
    if (value.size() > kMaxXmlAttributeLength) [[unlikely]]
      ThrowOverflow();
    Reserve(start.room() + value.size() + 1);
    Put(start);
    PutValue<XmlPlace::Attribute>(value, 1);
    Put(u'\'');
  }
  [[gnu::always_inline]] void PutText(const XmlTags& tags, std::u16string_view value) {
    Reserve(tags.start.room() + value.size() + tags.end.room());
    Put(tags.start);
    PutValue<XmlPlace::Content>(value, tags.end.room());
    Put(tags.end);
  }

 private:
  using Room = CStringBuilder::Room;

  [[noreturn]] static void ThrowOverflow();

  static constexpr char16_t kLineBreak[kXmlBlock] = u"\r\n";
  static constexpr char16_t kStartTagEnd[kXmlBlock] = u">\r\n";
  static constexpr char16_t kEmptyElementEnd[kXmlBlock] = u" />\r\n";

  /// What may be written beyond the end of what is put.
  static constexpr size_t kMargin = 3 * kXmlBlock;

  // Apart from the pen, so that it stays in registers.
  [[gnu::noinline]] static Room Grow(CStringBuilder& buffer, char16_t* end, size_t count);
  /// Writes a value that begins with a character to be escaped, and leaves room for so many more.
  template <XmlPlace Place>
  [[gnu::noinline]] static Room Escape(CStringBuilder& buffer, char16_t* end,
                                       std::u16string_view value, size_t following);

  /// The first characters of a block, and the line break that follows them there.
  void PutLine(const char16_t (&block)[kXmlBlock], size_t size) {
    CopyBlock(block, room_.start);
    room_.start += size + (breaksLines_ ? 2 : 0);
  }

  template <XmlPlace Place>
  static XmlBlock Escaped(XmlBlock block);
  /// The index of the first character that was found in a block; `kXmlBlock` when there is none.
  static size_t First(XmlBlock found);
  /// Copies the characters before the first that must be escaped, and returns their number. What
  /// lies after them, up to the length of the value, is of any content.
  template <XmlPlace Place>
  static size_t CopyPlain(std::u16string_view value, char16_t* to);

  CStringBuilder* buffer_;
  Room room_;
  bool breaksLines_;
};

[[gnu::always_inline]] inline char16_t* XmlPiece::CopyTo(char16_t* to, bool breaksLines) const {
  const char16_t* const from = blocks_.data();
  CopyBlock(from, to);
  CopyBlock(from + kXmlBlock, to + kXmlBlock);
  for (size_t at = 2 * kXmlBlock; at < blocks_.size(); at += kXmlBlock) {
    CopyBlock(from + at, to + at);
  }
  return to + sizes_[breaksLines];
}

/// Which characters of a block have to be escaped. Two that differ in one bit take one comparison.
template <XmlPlace Place>
[[gnu::always_inline]] inline XmlBlock XmlPen::Escaped(XmlBlock block) {
  const auto each = [](int character) { return XmlBlock{} + static_cast<uint16_t>(character); };
  const auto either = [&](char16_t one, char16_t other) {
    return reinterpret_cast<XmlBlock>((block | each(one ^ other)) == each(one | other));
  };
  if constexpr (Place == XmlPlace::Attribute) {
    return either(u'<', u'>') | either(u'&', u'\'') | either(u'"', u'"');
  } else {
    return either(u'<', u'>') | either(u'&', u'&');
  }
}

[[gnu::always_inline]] inline size_t XmlPen::First(XmlBlock found) {
#if defined(__SSE2__)
  const auto bytes = static_cast<unsigned>(_mm_movemask_epi8(reinterpret_cast<__m128i>(found)));
  return bytes == 0 ? kXmlBlock : static_cast<size_t>(std::countr_zero(bytes)) / sizeof(char16_t);
#else
  using Halves = uint64_t __attribute__((vector_size(16)));
  constexpr int kBitsOfCharacter = 16;
  const auto halves = reinterpret_cast<Halves>(found);
  if ((halves[0] | halves[1]) == 0) return kXmlBlock;
  const int bits = halves[0] != 0 ? std::countr_zero(halves[0]) : 64 + std::countr_zero(halves[1]);
  return static_cast<size_t>(bits / kBitsOfCharacter);
#endif
}

template <XmlPlace Place>
[[gnu::always_inline]] inline size_t XmlPen::CopyPlain(std::u16string_view value, char16_t* to) {
  using Half = uint64_t;
  using Halves = Half __attribute__((vector_size(16)));
  constexpr size_t kHalf = kXmlBlock / 2;
  const char16_t* const from = value.data();
  const size_t size = value.size();
  if (size >= kXmlBlock) {
    const auto copy = [&](size_t at) {
      const auto block = LoadCharacters<XmlBlock>(from + at);
      SaveCharacters(block, to + at);
      return First(Escaped<Place>(block));
    };
    const size_t last = size - kXmlBlock;
    for (size_t at = 0; at < last; at += kXmlBlock) {
      const size_t plain = copy(at);
      if (plain < kXmlBlock) return at + plain;
    }
    // It may overlap the one before, which is plain.
    return last + copy(last);
  }
  if (size >= kHalf) {
    const auto first = LoadCharacters<Half>(from);
    const auto last = LoadCharacters<Half>(from + size - kHalf);
    SaveCharacters(first, to);
    SaveCharacters(last, to + size - kHalf);
    const size_t plain = First(Escaped<Place>(reinterpret_cast<XmlBlock>(Halves{first, last})));
    return plain < kHalf ? plain : size - kXmlBlock + plain;
  }
  if (size == 0) return 0;
  // The first, the one in the middle and the last are all that there are.
  const XmlBlock few{from[0], from[size / 2], from[size - 1]};
  to[0] = from[0];
  to[size / 2] = from[size / 2];
  to[size - 1] = from[size - 1];
  const size_t plain = First(Escaped<Place>(few));
  return plain < kXmlBlock ? std::min(plain, size - 1) : size;
}

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_PEN_H_
