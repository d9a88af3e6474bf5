// The wording of reasons, and the search for the place they are about.
#include "praxen/xml/xml_reason.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>
#include <xercesc/framework/XMLErrorCodes.hpp>
#include <xercesc/framework/XMLValidityCodes.hpp>

#include "praxen/xml/xml_markup.h"

namespace praxen::detail {
namespace {

using xercesc::XMLErrs;
using xercesc::XMLValid;

// Where a reason points to.
enum class Target : uint8_t {
  Parser,     // Where the parser was.
  Piece,      // The piece of markup or text that it was in.
  Attribute,  // The attribute in that piece that the complaint names.
  Reference   // The character reference that it read.
};

// How a complaint of the parser is put. In the wording {0} and {1} are what the complaint quotes,
// {element} is the element in question, {tag} the name in the piece of markup, and {reference} and
// {character} are the character reference and what it stands for.
struct Wording {
  XmlRuleList list;
  unsigned int code;
  Target target;
  std::u16string_view sentence;
};

constexpr auto kWordings = std::to_array<Wording>({
    {XmlRuleList::Schema, XMLValid::ElementNotDefined, Target::Piece,
     u"Element '{0}' is not declared by the schema."},
    {XmlRuleList::Schema, XMLValid::RequiredAttrNotProvided, Target::Piece,
     u"Element '{element}' lacks the required attribute '{0}'."},
    {XmlRuleList::Schema, XMLValid::AttNotDefinedForElement, Target::Attribute,
     u"Attribute '{0}' is not declared for element '{element}'."},
    {XmlRuleList::Schema, XMLValid::AttributeNotUnQualified, Target::Piece,
     u"Attribute '{0}' of element '{element}' must have no prefix."},
    {XmlRuleList::Schema, XMLValid::AttributeNotQualified, Target::Attribute,
     u"Attribute '{0}' of element '{element}' must have a prefix."},
    {XmlRuleList::Schema, XMLValid::NoCharDataInCM, Target::Piece,
     u"Text is not allowed in element '{element}'; only elements are expected."},
    {XmlRuleList::Schema, XMLValid::ElementNotValidForContent, Target::Piece,
     u"Element '{0}' is not allowed here in element '{element}'; expected {1}."},
    {XmlRuleList::Schema, XMLValid::NotEnoughElemsForCM, Target::Piece,
     u"Element '{element}' is not complete; expected {0}."},
    {XmlRuleList::Schema, XMLValid::EmptyNotValidForContent, Target::Piece,
     u"Element '{element}' must not be empty; expected {0}."},
    {XmlRuleList::Xml, XMLErrs::ExpectedEndOfTagX, Target::Piece,
     u"End tag '</{tag}>' does not match; expected '</{0}>'."},
    {XmlRuleList::Xml, XMLErrs::EndedWithTagsOnStack, Target::Parser,
     u"The text ends inside element '{0}'; expected '</{0}>'."},
    {XmlRuleList::Xml, XMLErrs::ExpectedCommentOrPI, Target::Parser,
     u"Only one root element is allowed; expected the end of the text, a comment or a processing "
     u"instruction."},
    {XmlRuleList::Xml, XMLErrs::InvalidDocumentStructure, Target::Parser,
     u"There is no root element; expected one here."},
    {XmlRuleList::Xml, XMLErrs::MoreEndThanStartTags, Target::Piece,
     u"End tag '</{tag}>' has no start tag."},
    {XmlRuleList::Xml, XMLErrs::AttrAlreadyUsedInSTag, Target::Attribute,
     u"Attribute '{0}' is given twice in element '{element}'."},
    {XmlRuleList::Xml, XMLErrs::BracketInAttrValue, Target::Attribute,
     u"Character '<' is not allowed in the value of attribute '{1}'; expected '&lt;'."},
    {XmlRuleList::Xml, XMLErrs::ExpectedEqSign, Target::Parser,
     u"An attribute of element '{element}' has no value; expected '='."},
    {XmlRuleList::Xml, XMLErrs::ExpectedAttrValue, Target::Parser,
     u"An attribute value of element '{element}' is not quoted; expected '\"' or \"'\"."},
    {XmlRuleList::Xml, XMLErrs::InvalidCharacterRef, Target::Reference,
     u"Reference '{reference}' is to {character}, which is not allowed in XML."},
    {XmlRuleList::Xml, XMLErrs::EntityNotFound, Target::Reference,
     u"Entity '{0}' is not defined; expected 'amp', 'lt', 'gt', 'apos' or 'quot'."},
    {XmlRuleList::Xml, XMLErrs::UnknownPrefix, Target::Piece,
     u"Prefix '{0}' is not declared; expected an attribute 'xmlns:{0}'."},
});

const Wording* FindWording(const XmlComplaint& complaint) {
  const auto* const found =
      std::find_if(kWordings.begin(), kWordings.end(), [&](const Wording& wording) {
        return wording.list == complaint.list && wording.code == complaint.code;
      });
  return found == kWordings.end() ? nullptr : found;
}

// What stands between single quotes.
std::vector<std::u16string_view> QuotedParts(std::u16string_view text) {
  std::vector<std::u16string_view> parts;
  for (size_t open = text.find(u'\''); open != std::u16string_view::npos;) {
    const size_t close = text.find(u'\'', open + 1);
    if (close == std::u16string_view::npos) break;
    parts.push_back(text.substr(open + 1, close - open - 1));
    open = text.find(u'\'', close + 1);
  }
  return parts;
}

std::u16string Shortened(std::u16string_view name) {
  constexpr size_t kLongest = 200;
  if (name.size() <= kLongest) return std::u16string(name);
  return std::u16string(name.substr(0, kLongest)) + u"...";
}

std::u16string AsSentence(std::u16string text) {
  if (!text.empty() && text.front() >= u'a' && text.front() <= u'z') {
    text.front() = static_cast<char16_t>(text.front() - u'a' + u'A');
  }
  if (!text.ends_with(u'.')) text += u'.';
  return text;
}

// Finds what a complaint is about and puts it into words.
class Explanation {
 public:
  Explanation(std::u16string_view text, const XmlComplaint& complaint, const XmlProgress& progress)
      : text_(text),
        complaint_(complaint),
        parserOffset_(OffsetAt(text, complaint.place)),
        quoted_(QuotedParts(complaint.text)) {
    FindPiece(progress.startedElements);
    element_ = isStarting_ ? XmlTagName(piece()) : progress.openElement;
  }

  XmlParseError Make() const {
    if (complaint_.isFatal && parserOffset_ == text_.size() && !piece_.closed) {
      return ErrorAt(piece_.begin, Unclosed());
    }
    const Wording* const wording = FindWording(complaint_);
    if (wording != nullptr && wording->code == XMLValid::ElementNotValidForContent &&
        piece_.kind == XmlMarkupKind::EmptyTag && !quoted_.empty()) {
      return ErrorAt(piece_.begin, u"Element '" + Shortened(element_) +
                                       u"' must not be empty; expected " +
                                       Shortened(quoted_.back()) + u".");
    }
    if (wording != nullptr) return ErrorAt(OffsetOf(wording->target), Filled(*wording));
    if (!complaint_.isFatal) return Invalid();
    const bool namesElement = std::find(quoted_.begin(), quoted_.end(), element_) != quoted_.end();
    if (!isStarting_ || element_.empty() || namesElement) {
      return ErrorAt(parserOffset_, AsSentence(complaint_.text));
    }
    return ErrorAt(parserOffset_, AsSentence(complaint_.text + u" in the start tag of element '" +
                                             Shortened(element_) + u"'"));
  }

 private:
  // Takes the last piece that begins before the parser's place.
  void FindPiece(size_t startedElements) {
    size_t started = 0;
    for (XmlMarkupReader reader(text_); reader.Next() && reader.markup().begin < parserOffset_;) {
      piece_ = reader.markup();
      if (piece_.startsElement()) ++started;
    }
    isStarting_ = piece_.startsElement() && started > startedElements;
  }

  std::u16string_view piece() const {
    return text_.substr(piece_.begin, piece_.end - piece_.begin);
  }

  XmlParseError ErrorAt(size_t offset, std::u16string sentence) const {
    return MakeXmlError(std::move(sentence), PlaceAt(text_, offset));
  }

  std::u16string_view mark() const {
    switch (piece_.kind) {
      case XmlMarkupKind::Comment:
        return u"-->";
      case XmlMarkupKind::CData:
        return u"]]>";
      case XmlMarkupKind::Instruction:
        return u"?>";
      default:
        return u">";
    }
  }

  std::u16string Unclosed() const {
    return u"The text ends inside the markup that begins here; expected '" +
           std::u16string(mark()) + u"'.";
  }

  size_t OffsetOf(Target target) const {
    switch (target) {
      case Target::Piece:
        return PieceStart();
      case Target::Attribute:
        return piece_.begin + NamedAttribute();
      case Target::Reference:
        return ReferenceStart();
      default:
        return parserOffset_;
    }
  }

  // Text begins for the reader with its first character that is not a blank.
  size_t PieceStart() const {
    size_t start = piece_.begin;
    if (piece_.kind != XmlMarkupKind::Text) return start;
    while (start + 1 < piece_.end && IsXmlBlank(text_[start])) ++start;
    return start;
  }

  size_t ReferenceStart() const {
    const size_t found = text_.substr(0, parserOffset_).rfind(u'&');
    return found == std::u16string_view::npos ? parserOffset_ : found;
  }

  // The offset in the piece of the attribute that the complaint names, of two such the second; 0
  // when it names none.
  size_t NamedAttribute() const {
    for (const std::u16string_view name : quoted_) {
      size_t offset = 0;
      ForEachAttribute([&](const XmlRawAttribute& attribute) {
        if (attribute.name == name) offset = attribute.offset;
      });
      if (offset != 0) return offset;
    }
    return 0;
  }

  template <class Visit>
  void ForEachAttribute(Visit visit) const {
    const std::u16string_view tag = piece();
    if (!piece_.startsElement()) return;
    for (XmlRawAttribute attribute = NextXmlAttribute(tag, 1 + XmlTagName(tag).size());
         attribute.offset != std::u16string_view::npos;) {
      visit(attribute);
      const auto close = static_cast<size_t>(attribute.value.end() - tag.begin());
      attribute = NextXmlAttribute(tag, close + 1);
    }
  }

  std::u16string Filled(const Wording& wording) const {
    std::u16string out;
    for (std::u16string_view rest = wording.sentence; !rest.empty();) {
      const size_t open = rest.find(u'{');
      out.append(rest.substr(0, open));
      if (open == std::u16string_view::npos) break;
      const size_t close = rest.find(u'}', open);
      out += Shortened(Argument(rest.substr(open + 1, close - open - 1)));
      rest.remove_prefix(close + 1);
    }
    return out;
  }

  std::u16string Argument(std::u16string_view name) const {
    if (name == u"element") return std::u16string(element_);
    if (name == u"tag") return std::u16string(XmlTagName(piece()));
    if (name == u"reference") return std::u16string(reference());
    if (name == u"character") return ReferredCharacter();
    const auto index = static_cast<size_t>(name.front() - u'0');
    return index < quoted_.size() ? std::u16string(quoted_[index]) : std::u16string();
  }

  std::u16string_view reference() const {
    const std::u16string_view rest = text_.substr(ReferenceStart());
    return rest.substr(0, std::min(rest.find(u';'), rest.size() - 1) + 1);
  }

  std::u16string ReferredCharacter() const {
    const bool isHex = reference().starts_with(u"&#x");
    uint32_t character = 0;
    for (const char16_t c : reference().substr(isHex ? 3 : 2)) {
      if (c == u';') break;
      const auto digit = static_cast<uint32_t>(c <= u'9' ? c - u'0' : (c | 0x20) - u'a' + 10);
      character = character * (isHex ? 16 : 10) + digit;
      if (character > 0x10FFFF) return u"a number above U+10FFFF";
    }
    return XmlCodePoint(character);
  }

  // The parser does not say which attribute has a value that its type does not allow: it is the
  // one with the value that the complaint quotes, if there is one such only.
  XmlParseError Invalid() const {
    std::u16string subject = isStarting_ ? u"Element '" : u"Content of element '";
    subject += Shortened(element_) + u"'";
    size_t offset = PieceStart();
    size_t matching = 0;
    if (isStarting_ && !quoted_.empty()) {
      XmlRawAttribute found;
      ForEachAttribute([&](const XmlRawAttribute& attribute) {
        if (attribute.value != quoted_.front()) return;
        found = attribute;
        ++matching;
      });
      if (matching == 1) {
        subject =
            u"Attribute '" + Shortened(found.name) + u"' of element '" + Shortened(element_) + u"'";
        offset = piece_.begin + found.offset;
      }
    }
    return ErrorAt(offset, AsSentence(subject + u" is not valid: " + complaint_.text));
  }

  const std::u16string_view text_;
  const XmlComplaint& complaint_;
  const size_t parserOffset_;
  const std::vector<std::u16string_view> quoted_;
  XmlMarkup piece_;
  // Whether the piece is the start tag of an element that was not reported yet.
  bool isStarting_ = false;
  std::u16string_view element_;
};

}  // namespace

XmlParseError ExplainXmlComplaint(std::u16string_view text, const XmlComplaint& complaint,
                                  const XmlProgress& progress) {
  if (complaint.place.line == 0) return MakeXmlError(AsSentence(complaint.text), {});
  return Explanation(text, complaint, progress).Make();
}

XmlParseError ExplainSchemaComplaint(std::u16string_view systemId, const XmlComplaint& complaint) {
  const bool isOther = !complaint.document.empty() && complaint.document != systemId;
  const std::u16string document = isOther ? u"'" + complaint.document + u"'" : u"the schema";
  std::u16string place;
  if (complaint.place.line != 0) {
    place = u" (" + PlaceText(complaint.place) + u" of " + document + u")";
  } else if (isOther) {
    place = u" (" + document + u")";
  }
  return {AsSentence(u"The schema '" + std::u16string(systemId) + u"' cannot be used: " +
                     complaint.text) +
              place,
          {},
          true};
}

}  // namespace praxen::detail
