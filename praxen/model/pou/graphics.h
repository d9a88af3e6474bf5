// What places and sizes graphics: Point with its list, GraphPos and GraphSize.
#ifndef PRAXEN_MODEL_POU_GRAPHICS_H_
#define PRAXEN_MODEL_POU_GRAPHICS_H_

#include "praxen/model/collection.h"

namespace praxen {

class Point final : public describe::Described<Point> {
 public:
  double X = 0, Y = 0;

  static constexpr std::string_view kHelp = "A point in a control module's graphics.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::X>("Horizontal coordinate in the surrounding graphics."),
        property<&T::Y>("Vertical coordinate in the surrounding graphics."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&T::X>(), always<&T::Y>()}};
  }
  using Form = describe::Creation<T, &T::X, &T::Y>;
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

class GraphPos final : public describe::Described<GraphPos> {
 public:
  double XPos = 0, YPos = 0, Rotation = 0, XScale = 1, YScale = 1;

  static constexpr std::string_view kHelp =
      "The place of a control module in its parent's graphics.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::XPos>("Horizontal coordinate in the surrounding graphics."),
        property<&T::YPos>("Vertical coordinate in the surrounding graphics."),
        property<&T::Rotation>(
            "Angle by which the graphics are turned, in the engineering tool's unit."),
        property<&T::XScale>("Horizontal scale factor; 1 is the type's own size."),
        property<&T::YScale>("Vertical scale factor; 1 is the type's own size."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&T::XPos>(), always<&T::YPos>(), always<&T::Rotation>(),
                           always<&T::XScale>(), always<&T::YScale>()}};
  }
  using Form = describe::Creation<T, &T::XPos, &T::YPos, &T::Rotation, &T::XScale, &T::YScale>;
};

class GraphSize final : public describe::Described<GraphSize> {
 public:
  Ref<Point> LowerLeft = Point::Form()(-1, -1);
  Ref<Point> UpperRight = Point::Form()(1, 1);

  static constexpr std::string_view kHelp = "The size of a control module type's graphics.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::LowerLeft>("Lower left corner."),
        property<&T::UpperRight>("Upper right corner."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.children = {unnamed<&T::LowerLeft>(), unnamed<&T::UpperRight>()}};
  }
  using Form = describe::Creation<T, &T::LowerLeft, &T::UpperRight>;
};

extern template struct describe::Published<Point>;
extern template struct describe::Published<Points>;
extern template struct describe::Published<GraphPos>;
extern template struct describe::Published<GraphSize>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_GRAPHICS_H_
