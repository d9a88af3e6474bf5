// XmlScanner: one pass over the characters of an ordinary document.
#ifndef PRAXEN_XML_XML_SCANNER_H_
#define PRAXEN_XML_XML_SCANNER_H_

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "praxen/core/text.h"
#include "praxen/xml/xml_markup.h"
#include "praxen/xml/xml_scan.h"

namespace praxen::detail {

/// Thrown where a document is not one that the scanner is sure of; nothing is said of its fault.
struct XmlGivenUp {};

/// Reads the pieces of a well-formed document without prefixes, declarations of types and
/// processing instructions, whose names are ASCII, as its caller expects them; throws `XmlGivenUp`
/// for everything else.
///
/// Views that are returned are valid until the next call.
class XmlScanner {
 public:
  /// The text has to stay alive.
  explicit XmlScanner(const Text& text);
  XmlScanner(const XmlScanner&) = delete;
  XmlScanner& operator=(const XmlScanner&) = delete;
  ~XmlScanner();

  /// Passes over a byte-order mark, the declaration, blanks and comments, to the root's start tag.
  void ReadProlog();
  /// Passes over what may follow the root, which has to be all.
  void ReadEpilog();

  const char16_t* place() const { return next_; }
  /// Back to a place where the scanner was.
  void MoveTo(const char16_t* place) { next_ = place; }

  void SkipBlanks() {
    while (IsXmlBlank(*next_)) ++next_;
  }
  bool isAtEndTag() const { return next_[0] == u'<' && next_[1] == u'/'; }
  /// Passes over a comment; false where there is none.
  bool SkipComment() { return next_[0] == u'<' && next_[1] == u'!' && TakeComment(); }

  /// The name of the start tag at the place.
  std::u16string_view PeekName() const;
  /// Passes over the start of the start tag at the place, whose name is known.
  void TakeName(std::u16string_view name) { next_ += 1 + name.size(); }
  /// Moves to the start tag's next attribute; false at the end of the tag.
  bool FindAttribute();
  /// Passes over the name of the attribute at the place if it is that one.
  bool TakesAttribute(std::u16string_view name) {
    const size_t size = name.size();
    if (*next_ != name.front() || static_cast<size_t>(end_ - next_) <= size ||
        next_[size] != u'=' || !AreSame(next_, name.data(), size)) {
      return false;
    }
    next_ += size + 1;
    return true;
  }
  /// Passes over the name of the attribute at the place.
  std::u16string_view TakeAttribute();
  /// The value of the attribute whose name was passed over.
  std::u16string_view AttributeValue();
  /// Passes over the end of a start tag; whether the element has content.
  bool EndStartTag();

  /// The text up to the end tag.
  std::u16string_view Content();
  /// Passes over an end tag.
  void TakeEndTag(std::u16string_view name);
  /// The text of an element that holds nothing else, from behind its name or the attributes that
  /// were read; passes over the element.
  std::u16string_view TextOf(std::u16string_view name);

  /// The element at the place with its content, whatever its names; `depth` tells how many elements
  /// are open.
  std::u16string_view Markup(size_t depth);

 private:
  class Names;

  /// Counts a name that is taken whatever it is: a document may use only so many.
  void CountName(std::u16string_view name);
  bool TakeComment();
  bool Takes(std::u16string_view characters);
  void Expect(std::u16string_view characters) {
    if (!Takes(characters)) throw XmlGivenUp();
  }
  void ReadDeclaration();
  const char16_t* FindInValue(const char16_t* begin, char16_t quote) const;
  std::u16string_view DecodedValue(const char16_t* begin, const char16_t* special);
  void SkipCharacters();
  std::u16string_view DecodedContent(const char16_t* begin);
  void AppendReference();
  void AppendBreak();
  void AppendSection();
  void SkipOrdinary();
  void SkipMarkupText();

  const char16_t* next_;
  // Of the text, where its NUL stands.
  const char16_t* const end_;
  // Values that do not stand in the text as they are.
  std::u16string decoded_;
  std::unique_ptr<Names> names_;
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_XML_SCANNER_H_
