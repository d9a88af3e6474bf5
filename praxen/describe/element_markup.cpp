// The markup of elements, made from layouts.
#include "praxen/describe/element_markup.h"

#include <algorithm>
#include <limits>

#include "praxen/core/enumerations.h"
#include "praxen/core/numbers.h"
#include "praxen/xml/xml_escape.h"

namespace praxen::describe {

namespace {

XmlPiece EndTag(const std::u16string& name) { return XmlPiece(u"</" + name + u">\n"); }

// The value that absence stands for; none where the attribute is left out for an empty text only.
double AbsentReal(const Attribute& attribute, Object& created) {
  if (attribute.type.kind != ValueKind::Double || attribute.rule == Rule::UnlessEmpty) {
    return std::numeric_limits<double>::quiet_NaN();
  }
  return *static_cast<const double*>(ValueOf(attribute, created));
}

}  // namespace

AttributeMarkup::AttributeMarkup(const Attribute& attribute, Object& created)
    : kind(attribute.type.kind),
      canBeAbsent(attribute.canBeAbsent),
      absentNumber(attribute.absentNumber),
      offset(attribute.offset),
      absentText(attribute.absentText),
      start(u" " + attribute.name + u"='"),
      absentReal(AbsentReal(attribute, created)),
      room(start.room() + kLongestNumber + 1) {
  if (kind != ValueKind::Enumeration) return;
  for (const EnumerationConstant& constant : attribute.type.enumeration->constants) {
    constants.push_back({constant.value, EscapeXml(constant.text, kEscapedInValues)});
    room = std::max(room, start.room() + constants.back().text.size() + 1);
  }
}

TextMarkup::TextMarkup(const Child& child)
    : depth(child.kind == ChildKind::Content ? 0
            : child.inner.empty()            ? 1
                                             : 2),
      tags(depth == 2 ? child.inner : child.name) {
  if (depth != 2) return;
  outerStart = XmlPiece(u"<" + child.name + u">\n");
  outerEnd = EndTag(child.name);
}

ElementMarkup::ElementMarkup(const Layout& layout, Object& created)
    : start(u"<" + layout.element), end(EndTag(layout.element)) {
  for (const Attribute& attribute : layout.attributes) {
    if (attribute.rule != Rule::ReadOnly) attributes.emplace_back(attribute, created);
  }
}

}  // namespace praxen::describe
