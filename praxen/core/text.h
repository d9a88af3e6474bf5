// Text: the UTF-16 string of every property, argument and document of the library.
#ifndef PRAXEN_CORE_TEXT_H_
#define PRAXEN_CORE_TEXT_H_

#include <atomic>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

#include "praxen/core/namespaces.h"

namespace praxen::detail {

/// The storage behind a text: a head, then the characters and a terminating NUL.
struct TextBlock {
  /// References held; 0 marks a block of static storage that is neither counted nor freed. The
  /// highest bit marks one in a `Region`.
  uint32_t references;
  uint32_t length;
};

/// The storage of a text that is known at compile time.
template <size_t Size>
struct StaticTextBlock {
  TextBlock head;
  char16_t characters[Size];
};

class TextBuffer;

}  // namespace praxen::detail

namespace praxen {

/// An immutable UTF-16 text of the size of one pointer: copying shares, assigning replaces.
///
/// It is made of UTF-16 or of UTF-8, whichever a client has: `u"…"`, `"…"`, `u8"…"` and the strings
/// and views of the standard library. What is not UTF-8 becomes U+FFFD.
///
/// The empty text and texts made with `_text` need no memory of their own. Characters are stored as
/// given, NUL and unpaired surrogates included; the length is at most 2^31-1 characters. Distinct
/// texts may be used from distinct threads, also when they share their characters.
class Text {
 public:
  Text() noexcept : characters_(kEmpty.characters) {}
  Text(const char16_t* characters) : Text(std::u16string_view(characters)) {}        // NOLINT
  Text(const std::u16string& characters) : Text(std::u16string_view(characters)) {}  // NOLINT
  /// Raises `Overflow` beyond 2^31-1 characters.
  Text(std::u16string_view characters);                                // NOLINT
  Text(const char* utf8) : Text(std::string_view(utf8)) {}             // NOLINT
  Text(const std::string& utf8) : Text(std::string_view(utf8)) {}      // NOLINT
  Text(const char8_t* utf8) : Text(std::u8string_view(utf8)) {}        // NOLINT
  Text(const std::u8string& utf8) : Text(std::u8string_view(utf8)) {}  // NOLINT
  Text(std::u8string_view utf8)                                        // NOLINT
      : Text(std::string_view(reinterpret_cast<const char*>(utf8.data()), utf8.size())) {}
  /// Raises `Overflow` beyond 2^31-1 UTF-16 characters.
  Text(std::string_view utf8);  // NOLINT
  Text(const Text& other) noexcept : characters_(other.characters_) { Retain(); }
  Text(Text&& other) noexcept : characters_(other.characters_) {
    other.characters_ = kEmpty.characters;
  }
  Text& operator=(const Text& other) noexcept {
    Text copy(other);
    std::swap(characters_, copy.characters_);
    return *this;
  }
  Text& operator=(Text&& other) noexcept {
    std::swap(characters_, other.characters_);
    return *this;
  }
  ~Text() { Release(); }

  /// The text of a block of static storage, shared without being counted.
  template <size_t Size>
  static Text FromStatic(detail::StaticTextBlock<Size>& block) noexcept {
    Text text;
    text.characters_ = block.characters;
    return text;
  }

  bool empty() const noexcept { return block().length == 0; }
  size_t size() const noexcept { return block().length; }
  /// The characters, followed by a NUL.
  const char16_t* data() const noexcept { return characters_; }
  const char16_t* c_str() const noexcept { return characters_; }
  std::u16string_view view() const noexcept { return {characters_, block().length}; }
  operator std::u16string_view() const noexcept { return view(); }  // NOLINT
  explicit operator std::u16string() const { return std::u16string(view()); }
  /// The text as UTF-8; an unpaired surrogate becomes U+FFFD.
  std::string utf8() const;

  friend bool operator==(const Text& left, const Text& right) noexcept {
    return left.characters_ == right.characters_ || left.view() == right.view();
  }
  friend bool operator==(const Text& left, std::u16string_view right) noexcept {
    return left.view() == right;
  }
  friend bool operator==(const Text& left, const char16_t* right) noexcept {
    return left.view() == right;
  }
  friend bool operator==(const Text& left, const std::u16string& right) noexcept {
    return left.view() == right;
  }
  friend auto operator<=>(const Text& left, const Text& right) noexcept {
    return left.view() <=> right.view();
  }
  friend Text operator+(const Text& left, std::u16string_view right) {
    return Join(left.view(), right);
  }
  friend Text operator+(std::u16string_view left, const Text& right) {
    return Join(left, right.view());
  }
  friend Text operator+(const Text& left, const Text& right) {
    return Join(left.view(), right.view());
  }
  friend Text operator+(const Text& left, const char16_t* right) {
    return Join(left.view(), right);
  }
  friend Text operator+(const char16_t* left, const Text& right) {
    return Join(left, right.view());
  }
  friend Text operator+(const Text& left, const std::u16string& right) {
    return Join(left.view(), right);
  }

 private:
  friend class detail::TextBuffer;

  static detail::StaticTextBlock<1> kEmpty;

  static Text Join(std::u16string_view left, std::u16string_view right);
  static char16_t* Allocate(size_t length);
  /// The same for a text that stays as it is, in the region of the document that is being read if
  /// there is one.
  static char16_t* AllocateFinal(size_t length);
  /// In bytes, with head and NUL.
  static constexpr size_t BlockSize(size_t length) noexcept {
    return sizeof(detail::TextBlock) + (length + 1) * sizeof(char16_t);
  }

  detail::TextBlock& block() const noexcept {
    return *(reinterpret_cast<detail::TextBlock*>(const_cast<char16_t*>(characters_)) - 1);
  }
  std::atomic_ref<uint32_t> references() const noexcept {
    return std::atomic_ref<uint32_t>(block().references);
  }
  void Retain() const noexcept {
    if (references().load(std::memory_order_relaxed) == 0) return;
    references().fetch_add(1, std::memory_order_relaxed);
  }
  void Release() noexcept {
    const uint32_t held = references().load(std::memory_order_acquire);
    if (held != 0) ReleaseCounted(held);
  }
  void ReleaseCounted(uint32_t held) noexcept;

  const char16_t* characters_;
};

}  // namespace praxen

namespace praxen::detail {

/// A string literal as a template argument.
template <size_t Size>
struct TextLiteral {
  consteval TextLiteral(const char16_t (&literal)[Size]) {  // NOLINT
    for (size_t i = 0; i < Size; ++i) characters[i] = literal[i];
  }
  char16_t characters[Size];
};

template <TextLiteral Literal>
struct StaticText {
  template <size_t Size>
  static constexpr StaticTextBlock<Size> Make(const TextLiteral<Size>& literal) {
    StaticTextBlock<Size> block{{0, Size - 1}, {}};
    for (size_t i = 0; i < Size; ++i) block.characters[i] = literal.characters[i];
    return block;
  }
  static inline constinit auto block = Make(Literal);
};

}  // namespace praxen::detail

namespace praxen {

/// A text of static storage: `u"retain"_text` costs no allocation.
template <detail::TextLiteral Literal>
Text operator""_text() noexcept {
  return Text::FromStatic(detail::StaticText<Literal>::block);
}

/// Prints the text as UTF-8.
std::ostream& operator<<(std::ostream& stream, const Text& text);

/// The text as UTF-8; an unpaired surrogate becomes U+FFFD.
std::string ToUtf8(std::u16string_view text);
/// The UTF-16 form of a UTF-8 text; a malformed sequence becomes U+FFFD.
std::u16string FromUtf8(std::string_view text);

}  // namespace praxen

template <>
struct std::hash<praxen::Text> {
  size_t operator()(const praxen::Text& text) const noexcept {
    return std::hash<std::u16string_view>()(text.view());
  }
};

#endif  // PRAXEN_CORE_TEXT_H_
