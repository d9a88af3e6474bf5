// ElementMarkup, what writing copies and asks of the elements of a class, made ready from its
// layout.
#ifndef PRAXEN_DESCRIBE_ELEMENT_MARKUP_H_
#define PRAXEN_DESCRIBE_ELEMENT_MARKUP_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "praxen/core/text.h"
#include "praxen/describe/layout.h"
#include "praxen/describe/object.h"
#include "praxen/describe/value_type.h"
#include "praxen/xml/xml_pen.h"

namespace praxen::describe {

/// An attribute that may be written.
struct AttributeMarkup {
  AttributeMarkup(const Attribute& attribute, Object& created);

  ValueKind kind;
  /// Whether the attribute is left out for the value that its absence stands for.
  bool canBeAbsent;
  int32_t absentNumber;
  std::ptrdiff_t offset;
  Text absentText;
  /// Up to the apostrophe before the value.
  XmlPiece start;
  double absentReal;
  /// The texts of an enumeration's constants, as they are written.
  struct Constant {
    int32_t value;
    std::u16string text;
  };
  std::vector<Constant> constants;
  /// For all that is written when the value is no text.
  size_t room;
};

/// A child that is a text.
struct TextMarkup {
  explicit TextMarkup(const Child& child);

  /// How many elements are around the text: none where it is the content of the object's own.
  uint32_t depth;
  XmlTags tags;
  /// Where there are two, the tags of the outer one.
  XmlPiece outerStart, outerEnd;
};

struct ElementMarkup {
  ElementMarkup(const Layout& layout, Object& created);

  /// The start tag up to the name.
  XmlPiece start;
  XmlPiece end;
  std::vector<AttributeMarkup> attributes;
};

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_ELEMENT_MARKUP_H_
