// Reading of objects by their layouts, and the readers that several classes share.
#ifndef PRAXEN_DESCRIBE_XML_READING_H_
#define PRAXEN_DESCRIBE_XML_READING_H_

#include <string_view>

#include "praxen/core/error.h"
#include "praxen/describe/document_values.h"
#include "praxen/describe/layout.h"
#include "praxen/describe/object.h"
#include "praxen/xml/xml_document.h"

namespace praxen::describe {

/// Fills a fresh object of that layout from its element.
void ReadElement(Object& object, const Layout& layout, const XmlNode& node);

/// Appends an element to the list for the node and for each of its following siblings that is named
/// like one of the list's classes; the others are skipped.
void ReadItems(Object& list, const Layout& layout, XmlNode first);

/// Gives an object the value of one of its attributes; raises what converting the text raises.
void SetValue(const Attribute& attribute, Object& object, std::u16string_view text,
              DocumentValues& values);
void SetText(Text& value, std::u16string_view text, DocumentValues& values);

/// What a text means where true or false is expected.
inline bool TextToBoolean(std::u16string_view text) { return text == u"1" || text == u"true"; }

/// The text of an element's first child, which is all that an element of text holds.
std::u16string_view FirstText(const XmlNode& node);

/// The text of an element that holds only text, empty without a node; raises `WrongElementName`
/// when the node has another name.
std::u16string_view ReadTextElement(const XmlNode& node, std::u16string_view name);

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_XML_READING_H_
