// ILCodeBlock, a code block in Instruction List, with its rows ILRow and their list.
#ifndef PRAXEN_MODEL_POU_IL_CODE_BLOCK_H_
#define PRAXEN_MODEL_POU_IL_CODE_BLOCK_H_

#include "praxen/model/collection.h"
#include "praxen/model/pou/code_block.h"

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
        property<&T::Label>("Label of the instruction."),
        property<&T::Instruction>("Operator of the instruction."),
        property<&T::Operand>("Operand of the instruction."),
        property<&T::Description>("Comment beside the instruction."),
        property<&T::ILRowComment>("Text of a comment row."),
        property<&T::IsRowComment>("Whether the row is a comment instead of an instruction."),
    };
  }
  static describe::Layout layout();

  struct CommentRow {
    static void Prepare(ILRow& row) { row.IsRowComment = true; }
  };
  using Form = describe::Creation<T, &T::Label, &T::Instruction, &T::Operand, &T::Description>;
  using CommentForm = describe::PreparedCreation<T, CommentRow, &T::ILRowComment>;

 private:
  void WriteTexts(detail::XMLStringWriter& writer);
  void ReadTexts(detail::XmlCursor& cursor);
};

class ILRows final : public Collection<ILRows, ILRow> {
 public:
  /// Appends an instruction row.
  Ref<ILRow> AddRow(const auto&... arguments) { return Create<ILRow::Form>(arguments...); }
  /// Appends a comment row.
  Ref<ILRow> AddComment(const auto&... arguments) {
    return Create<ILRow::CommentForm>(arguments...);
  }

  static constexpr std::string_view kHelp = "The rows of an instruction list, in order.";
  static describe::Members members() {
    using namespace describe;
    return Members{add(), addBefore(), creation<ILRow::Form>("AddRow", "Appends an instruction."),
                   creation<ILRow::CommentForm>("AddComment", "Appends a comment row.")} +
           positions();
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.elements = {choice<ILRow>()}, .container = Container::None};
  }
};

class ILCodeBlock final : public describe::Described<ILCodeBlock, ICodeBlock> {
 public:
  Text Name;
  Ref<praxen::ILRows> ILRows = New<praxen::ILRows>();

  static constexpr std::string_view kHelp = "A code block in Instruction List.";
  static describe::Members members() {
    using namespace describe;
    return {property<&T::Name>("Name of the code block."), property<&T::ILRows>("The rows."),
            serialize()};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>()}, .children = {items<&T::ILRows>()}};
  }
  using Form = describe::Creation<T, &T::Name>;
};

extern template struct describe::Published<ILRow>;
extern template struct describe::Published<ILRows>;
extern template struct describe::Published<ILCodeBlock>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_IL_CODE_BLOCK_H_
