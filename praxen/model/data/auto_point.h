// AutoPoint, the side of a control module's graphics at which a parameter is connected.
#ifndef PRAXEN_MODEL_DATA_AUTO_POINT_H_
#define PRAXEN_MODEL_DATA_AUTO_POINT_H_

#include "praxen/describe/creation.h"
#include "praxen/describe/description.h"

namespace praxen {

class AutoPoint final : public describe::Described<AutoPoint> {
 public:
  AutoPosValue AutoPos = pxRight;

  static constexpr std::string_view kHelp =
      "The side of a control module's graphics at which a parameter is connected.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::AutoPos>("Side of the graphics."),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {always<&T::AutoPos>()}};
  }
  using Form = describe::Creation<T, &T::AutoPos>;
};

extern template struct describe::Published<AutoPoint>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_AUTO_POINT_H_
