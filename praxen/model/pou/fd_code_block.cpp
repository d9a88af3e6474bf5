// The diagram of an FDCodeBlock as markup.
#include "praxen/model/pou/fd_code_block.h"

#include "praxen/xml/loss_recorder.h"
#include "praxen/xml/xml_document.h"
#include "praxen/xml/xml_markup.h"
#include "praxen/xml/xml_string_writer.h"

namespace praxen {

using namespace detail;

Layout FDCodeBlock::layout() {
  Child diagram = custom<&T::WriteDiagram, &T::ReadDiagram>(
      "The element of the function diagram, of any name and content.", {});
  diagram.isMarkup = true;
  return {.attributes = {required<&T::Name>()}, .children = {diagram}};
}

void FDCodeBlock::WriteDiagram(XMLStringWriter& writer) { writer.WriteXMLElementValue(FDAsXMLStr); }

void FDCodeBlock::ReadDiagram(XmlNode& cursor) {
  // Blanks between the tags are no diagram.
  const bool isText = cursor.nodeName() == u"#text";
  if (!cursor || (isText && IsXmlBlank(cursor.nodeValue()))) return;
  FDAsXMLStr = cursor.Markup();
  if (cursor.recorder() != nullptr) cursor.recorder()->TakeMarkup(cursor, u"FDCodeBlock");
  cursor = cursor.nextSibling();
}

}  // namespace praxen
