// GraphPos, the place of a control module in its parent's graphics.
#ifndef PRAXEN_MODEL_POU_GRAPH_POS_H_
#define PRAXEN_MODEL_POU_GRAPH_POS_H_

#include "praxen/describe/creation.h"
#include "praxen/describe/description.h"

namespace praxen {

class GraphPos final : public describe::Described<GraphPos> {
 public:
  double XPos = 0, YPos = 0, Rotation = 0, XScale = 1, YScale = 1;

  static constexpr std::string_view kHelp =
      "The place of a control module in its parent's graphics.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&GraphPos::XPos>("Horizontal coordinate."),
        property<&GraphPos::YPos>("Vertical coordinate."),
        property<&GraphPos::Rotation>("Angle by which the graphics are turned."),
        property<&GraphPos::XScale>("Horizontal scale factor."),
        property<&GraphPos::YScale>("Vertical scale factor."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&GraphPos::XPos>(), always<&GraphPos::YPos>(),
                           always<&GraphPos::Rotation>(), always<&GraphPos::XScale>(),
                           always<&GraphPos::YScale>()}};
  }
  using Form = describe::Creation<GraphPos, &GraphPos::XPos, &GraphPos::YPos, &GraphPos::Rotation,
                                  &GraphPos::XScale, &GraphPos::YScale>;
};

extern template const describe::ClassDescription& describe::Describe<GraphPos>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_GRAPH_POS_H_
