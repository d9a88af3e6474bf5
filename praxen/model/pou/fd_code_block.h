// FDCodeBlock, a code block that holds a function diagram as markup.
#ifndef PRAXEN_MODEL_POU_FD_CODE_BLOCK_H_
#define PRAXEN_MODEL_POU_FD_CODE_BLOCK_H_

#include "praxen/model/pou/code_block.h"

namespace praxen {

class FDCodeBlock final : public describe::Described<FDCodeBlock, ICodeBlock> {
 public:
  Text Name;
  /// One element with its content; written as it is, whether it is well-formed or not.
  Text FDAsXMLStr = u"<FunctionDiagram/>"_text;

  static constexpr std::string_view kHelp = "A code block that holds a function diagram.";
  static describe::Members members() {
    using namespace describe;
    return {property<&T::Name>("Name of the code block."),
            propertyPutFirst<&T::FDAsXMLStr>("The diagram as one XML element."), serialize()};
  }
  static describe::Layout layout();

 private:
  void WriteDiagram(detail::XMLStringWriter& writer);
  void ReadDiagram(detail::XmlCursor& cursor);
};

extern template struct describe::Published<FDCodeBlock>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_FD_CODE_BLOCK_H_
