// GraphSize, the size of a control module type's graphics.
#ifndef PRAXEN_MODEL_POU_GRAPH_SIZE_H_
#define PRAXEN_MODEL_POU_GRAPH_SIZE_H_

#include "praxen/model/pou/point.h"

namespace praxen {

class GraphSize final : public describe::Described<GraphSize> {
 public:
  Ref<Point> LowerLeft = Point::Form()(-1, -1);
  Ref<Point> UpperRight = Point::Form()(1, 1);

  static constexpr std::string_view kHelp = "The size of a control module type's graphics.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&GraphSize::LowerLeft>("Lower left corner; required for writing."),
        property<&GraphSize::UpperRight>("Upper right corner; required for writing."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.children = {unnamed<&GraphSize::LowerLeft>(), unnamed<&GraphSize::UpperRight>()}};
  }
  using Form = describe::Creation<GraphSize, &GraphSize::LowerLeft, &GraphSize::UpperRight>;
};

extern template const describe::ClassDescription& describe::Describe<GraphSize>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_GRAPH_SIZE_H_
