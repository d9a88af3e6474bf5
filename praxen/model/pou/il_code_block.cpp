// The two forms of a row of an instruction list in XML.
#include "praxen/model/pou/il_code_block.h"

#include "praxen/xml/xml_cursor.h"
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

struct RowTags {
  RowTags() {
    for (const RowText& row : kInstruction) instruction.emplace_back(std::u16string(row.element));
  }

  XmlTags comment{std::u16string(kComment.element)};
  /// In the order of `kInstruction`.
  std::vector<XmlTags> instruction;
};

}  // namespace

Layout ILRow::layout() {
  std::vector<ElementShape> shapes{{std::u16string(kComment.element)}};
  for (const RowText& row : kInstruction) shapes.push_back({std::u16string(row.element)});
  return {.children = {custom<&T::WriteTexts, &T::ReadTexts>(
              "Either a comment, or those of the instruction's texts that are not empty.",
              std::move(shapes))}};
}

void ILRow::WriteTexts(XMLStringWriter& writer) {
  static const RowTags tags;
  if (IsRowComment) return writer.WriteElementString(tags.comment, this->*kComment.text);
  for (size_t i = 0; i < tags.instruction.size(); ++i) {
    const Text& text = this->*kInstruction[i].text;
    if (!text.empty()) writer.WriteElementString(tags.instruction[i], text);
  }
}

void ILRow::ReadTexts(XmlCursor& cursor) {
  IsRowComment = cursor.name() == kComment.element;
  if (IsRowComment) {
    this->*kComment.text = cursor.ReadText();
    return;
  }
  for (const RowText& row : kInstruction) {
    if (cursor.name() == row.element) this->*row.text = cursor.ReadText();
  }
}

}  // namespace praxen
