// TextCodeBlock, the base of the code blocks whose content is one text.
#ifndef PRAXEN_MODEL_POU_TEXT_CODE_BLOCK_H_
#define PRAXEN_MODEL_POU_TEXT_CODE_BLOCK_H_

#include "praxen/core/text_functions.h"
#include "praxen/model/pou/code_block.h"

namespace praxen {

/// A code block whose content is one text, which the library does not interpret.
template <class Class>
class TextCodeBlock : public CodeBlock<Class> {
 public:
  Text Name, STcode;

  static describe::Members members() {
    using namespace describe;
    return {property<&TextCodeBlock::Name>("Name of the code block; required for writing."),
            property<&TextCodeBlock::STcode>("The code."), serialize()};
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&TextCodeBlock::Name>()},
            .children = {textAlways<&TextCodeBlock::STcode>(u"ST_Code")}};
  }
  using Form = describe::Creation<Class, &TextCodeBlock::Name>;
  using LongForm = describe::Extended<Form, describe::byReference<&TextCodeBlock::STcode>>;

 protected:
  /// The layout of a class whose code may hold entity texts: they are written as what they stand
  /// for, so that they are not escaped twice.
  static describe::Layout unescapingLayout() {
    using namespace describe;
    describe::Layout layout = TextCodeBlock::layout();
    layout.children.front().writtenAs = &UnescapeText;
    return layout;
  }

  using CodeBlock<Class>::CodeBlock;
  TextCodeBlock() = default;
};

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_TEXT_CODE_BLOCK_H_
