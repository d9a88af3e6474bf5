// Point, a point in a control module's graphics, and the list of them.
#ifndef PRAXEN_MODEL_POU_POINT_H_
#define PRAXEN_MODEL_POU_POINT_H_

#include "praxen/model/collection.h"

namespace praxen {

class Point final : public describe::Described<Point> {
 public:
  double X = 0, Y = 0;

  static constexpr std::string_view kHelp = "A point in a control module's graphics.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&Point::X>("Horizontal coordinate."),
        property<&Point::Y>("Vertical coordinate."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&Point::X>(), always<&Point::Y>()}};
  }
  using Form = describe::Creation<Point, &Point::X, &Point::Y>;
};

class Points final : public Collection<Points, Point> {
 public:
  static constexpr std::string_view kHelp = "Points, in order.";
  static constexpr std::string_view kArgument = "pt";
  static describe::Layout layout() {
    using namespace describe;
    return {.elements = {choice<Point>()}, .container = Container::None};
  }
};

extern template const describe::ClassDescription& describe::Describe<Point>();
extern template const describe::ClassDescription& describe::Describe<Points>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_POINT_H_
