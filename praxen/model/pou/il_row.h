// ILRow, a row of an instruction list, and the list of them.
#ifndef PRAXEN_MODEL_POU_IL_ROW_H_
#define PRAXEN_MODEL_POU_IL_ROW_H_

#include "praxen/model/collection.h"

namespace praxen {

/// An instruction, or a comment that fills the row.
class ILRow final : public describe::Described<ILRow> {
 public:
  Text Label, Instruction, Operand, Description;
  /// Counts in a comment row only, and the four others in an instruction row only.
  Text ILRowComment;
  bool IsRowComment = false;

  static constexpr std::string_view kHelp = "A row of an instruction list.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&ILRow::Label>("Label of the instruction."),
        property<&ILRow::Instruction>("Operator of the instruction."),
        property<&ILRow::Operand>("Operand of the instruction."),
        property<&ILRow::Description>("Comment beside the instruction."),
        property<&ILRow::ILRowComment>("Text of a comment row."),
        property<&ILRow::IsRowComment>("Whether the row is a comment instead of an instruction."),
    };
  }
  static describe::Layout layout();

  struct CommentRow {
    static void Prepare(ILRow& row) { row.IsRowComment = true; }
  };
  using Form = describe::Creation<ILRow, &ILRow::Label, &ILRow::Instruction, &ILRow::Operand,
                                  &ILRow::Description>;
  using CommentForm = describe::PreparedCreation<ILRow, CommentRow, &ILRow::ILRowComment>;

 private:
  void WriteTexts(detail::XMLStringWriter& writer);
  void ReadTexts(detail::XmlNode& cursor);
};

class ILRows final : public Collection<ILRows, ILRow> {
 public:
  /// Appends an instruction row.
  Ref<ILRow> AddRow(const Text& Label, const Text& Instruction, const Text& Operand,
                    const Text& Description) {
    return describe::Addition<ILRows, ILRow::Form>::Run(*this, Label, Instruction, Operand,
                                                        Description);
  }
  /// Appends a comment row.
  Ref<ILRow> AddComment(const Text& ILRowComment) {
    return describe::Addition<ILRows, ILRow::CommentForm>::Run(*this, ILRowComment);
  }

  static constexpr std::string_view kHelp = "The rows of an instruction list, in order.";
  static describe::Members members() {
    using namespace describe;
    return Members{
               add(), addBefore(),
               method<&ILRows::AddRow>("Appends an instruction.", ILRow::Form::ParameterNames()),
               method<&ILRows::AddComment>("Appends a comment row.",
                                           ILRow::CommentForm::ParameterNames())} +
           positions();
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.elements = {choice<ILRow>()}, .container = Container::None};
  }
};

extern template const describe::ClassDescription& describe::Describe<ILRow>();
extern template const describe::ClassDescription& describe::Describe<ILRows>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_IL_ROW_H_
