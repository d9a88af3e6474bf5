// Splits the text of a document into its markup, without checking it.
#ifndef PRAXEN_XML_XML_MARKUP_H_
#define PRAXEN_XML_XML_MARKUP_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace praxen::detail {

/// What a piece of a document is.
enum class XmlMarkupKind : uint8_t {
  Text,
  StartTag,
  EmptyTag,
  EndTag,
  Comment,
  Instruction,
  CData,
  Doctype
};

/// One piece of a document, from its first character to the one after its last. Of malformed text
/// the pieces are unspecified, but they follow each other without gaps and none is empty.
struct XmlMarkup {
  XmlMarkupKind kind = XmlMarkupKind::Text;
  size_t begin = 0;
  size_t end = 0;
  /// False when the text ends before the piece does.
  bool closed = true;

  /// Of tags: how many attributes there are, how many of these declare namespaces, and the lengths
  /// of the longest name and the longest value.
  uint32_t attributes = 0;
  uint32_t namespaces = 0;
  size_t longestName = 0;
  size_t longestValue = 0;

  bool startsElement() const {
    return kind == XmlMarkupKind::StartTag || kind == XmlMarkupKind::EmptyTag;
  }
};

/// Walks a text from piece to piece.
class XmlMarkupReader {
 public:
  explicit XmlMarkupReader(std::u16string_view text) : text_(text) {}

  /// Moves to the next piece; false at the end of the text.
  bool Next();
  const XmlMarkup& markup() const { return markup_; }

 private:
  void ReadDeclaration();
  void ReadTag();
  /// Ends the piece after the next occurrence of `mark` at or after `from`.
  void EndAfter(std::u16string_view mark, size_t from);

  const std::u16string_view text_;
  XmlMarkup markup_;
};

/// Whether the character is a blank of XML.
constexpr bool IsXmlBlank(char16_t c) {
  return c == u' ' || c == u'\n' || c == u'\t' || c == u'\r';
}

/// Whether a text holds only blanks.
bool IsXmlBlank(std::u16string_view text);

/// Whether the name of an attribute makes it declare a namespace.
bool DeclaresXmlNamespace(std::u16string_view attributeName);

/// The name with which a tag begins; `tag` begins with "<".
std::u16string_view XmlTagName(std::u16string_view tag);

/// One attribute as it is written in a tag.
struct XmlRawAttribute {
  std::u16string_view name;
  /// What stands between the quotes.
  std::u16string_view value;
  /// Where the name begins in the tag; npos when there is no such attribute.
  size_t offset = std::u16string_view::npos;
};

/// The first attribute of a tag at or after `from`.
XmlRawAttribute NextXmlAttribute(std::u16string_view tag, size_t from);

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_MARKUP_H_
