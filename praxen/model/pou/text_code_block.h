// The code blocks whose content is one text: STCodeBlock, LDCodeBlock and FBDCodeBlock.
#ifndef PRAXEN_MODEL_POU_TEXT_CODE_BLOCK_H_
#define PRAXEN_MODEL_POU_TEXT_CODE_BLOCK_H_

#include "praxen/core/text_functions.h"
#include "praxen/model/pou/code_block.h"

namespace praxen::detail {

/// A code block whose content is one text, which the library does not interpret.
template <class Class>
class TextCodeBlock : public Described<Class, ICodeBlock> {
 public:
  using T = TextCodeBlock;

  Text Name, STcode;

  static describe::Members members() {
    using namespace describe;
    return {property<&T::Name>("Name of the code block."), property<&T::STcode>("The code."),
            serialize()};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>()}, .children = {textAlways<&T::STcode>(u"ST_Code")}};
  }
  using Form = describe::Creation<Class, &T::Name>;
  using LongForm = describe::Extended<Form, describe::byReference<&T::STcode>>;

 protected:
  /// The layout of a class whose code may hold entity texts: they are written as what they stand
  /// for, so that they are not escaped twice.
  static describe::Layout unescapingLayout() {
    using namespace describe;
    describe::Layout layout = TextCodeBlock::layout();
    layout.children.front().writtenAs = &UnescapeText;
    return layout;
  }

  using Described<Class, ICodeBlock>::Described;
  TextCodeBlock() = default;
};

}  // namespace praxen::detail

namespace praxen {

class STCodeBlock final : public detail::TextCodeBlock<STCodeBlock> {
 public:
  static constexpr std::string_view kHelp = "A code block in Structured Text.";
};

class LDCodeBlock final : public detail::TextCodeBlock<LDCodeBlock> {
 public:
  /// Not counted among the live objects of the library.
  LDCodeBlock() : TextCodeBlock(Counting::No) {}

  static constexpr std::string_view kHelp = "A code block in Ladder Diagram.";
  static describe::Layout layout() {
    using namespace describe;
    return unescapingLayout();
  }
};

class FBDCodeBlock final : public detail::TextCodeBlock<FBDCodeBlock> {
 public:
  static constexpr std::string_view kHelp = "A code block in Function Block Diagram.";
  static describe::Layout layout() {
    using namespace describe;
    return unescapingLayout();
  }
};

extern template struct describe::Published<STCodeBlock>;
extern template struct describe::Published<LDCodeBlock>;
extern template struct describe::Published<FBDCodeBlock>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_TEXT_CODE_BLOCK_H_
