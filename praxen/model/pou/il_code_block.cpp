// The two forms of a row of an instruction list in XML.
#include "praxen/model/pou/il_code_block.h"

#include "praxen/describe/xml_reading.h"
#include "praxen/xml/xml_string_writer.h"

namespace praxen {

using namespace detail;

namespace {

struct RowText {
  std::u16string_view element;
  Text ILRow::*text;
};

constexpr RowText kComment{u"ILRowComment", &ILRow::ILRowComment};
constexpr RowText kInstruction[] = {{u"Label", &ILRow::Label},
                                    {u"Instruction", &ILRow::Instruction},
                                    {u"Operand", &ILRow::Operand},
                                    {u"Description", &ILRow::Description}};

}  // namespace

Layout ILRow::layout() {
  std::vector<ElementShape> shapes{{std::u16string(kComment.element)}};
  for (const RowText& row : kInstruction) shapes.push_back({std::u16string(row.element)});
  return {.children = {custom<&T::WriteTexts, &T::ReadTexts>(
              "Either a comment, or those of the instruction's texts that are not empty.",
              std::move(shapes))}};
}

void ILRow::WriteTexts(XMLStringWriter& writer) {
  if (IsRowComment) return writer.WriteElementString(kComment.element, this->*kComment.text);
  for (const RowText& row : kInstruction) {
    const Text& text = this->*row.text;
    if (!text.empty()) writer.WriteElementString(row.element, text);
  }
}

void ILRow::ReadTexts(XmlNode& cursor) {
  IsRowComment = cursor.nodeName() == kComment.element;
  if (IsRowComment) {
    this->*kComment.text = ReadTextElement(cursor, kComment.element);
    return;
  }
  for (const RowText& row : kInstruction) {
    if (cursor.nodeName() != row.element) continue;
    this->*row.text = ReadTextElement(cursor, row.element);
    cursor = cursor.nextSibling();
  }
}

}  // namespace praxen
