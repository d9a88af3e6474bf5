// AutoPoint, the side of a control module's graphics at which a parameter is connected.
#ifndef PRAXEN_MODEL_DATA_AUTO_POINT_H_
#define PRAXEN_MODEL_DATA_AUTO_POINT_H_

#include "praxen/describe/creation.h"
#include "praxen/describe/description.h"

namespace praxen {

class AutoPoint final : public Described<AutoPoint> {
 public:
  AutoPosValue AutoPos = pxRight;

  static constexpr std::string_view kHelp =
      "The side of a control module's graphics at which a parameter is connected.";
  static Members members() {
    return {
        property<&AutoPoint::AutoPos>("Side of the graphics."),
    };
  }
  static Layout layout() { return {.attributes = {always<&AutoPoint::AutoPos>()}}; }
  using Form = Creation<AutoPoint, &AutoPoint::AutoPos>;
};

extern template const ClassDescription& Describe<AutoPoint>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_AUTO_POINT_H_
