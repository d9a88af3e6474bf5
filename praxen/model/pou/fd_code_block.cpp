// The diagram of an FDCodeBlock as markup.
#include "praxen/model/pou/fd_code_block.h"

#include "praxen/xml/xml_cursor.h"
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

void FDCodeBlock::ReadDiagram(XmlCursor& cursor) {
  // Blanks between the tags are no diagram.
  if (!cursor.isAtEnd()) FDAsXMLStr = cursor.ReadMarkup(u"FDCodeBlock");
}

}  // namespace praxen
