// CMConnection, a connection of a parameter of a control module, and the list of them.
#ifndef PRAXEN_MODEL_POU_CM_CONNECTION_H_
#define PRAXEN_MODEL_POU_CM_CONNECTION_H_

#include "praxen/model/pou/graphics.h"

namespace praxen {

class CMConnection final : public describe::Serializable<CMConnection> {
 public:
  Text Name, ActualParameter;
  bool GraphicalConnection = false;
  Ref<praxen::Points> Points = New<praxen::Points>();

  static constexpr std::string_view kHelp = "A connection of a parameter of a control module.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::Name>("Name of the parameter."),
        property<&T::ActualParameter>("What the parameter is connected to."),
        property<&T::GraphicalConnection>("Whether the connection is drawn."),
        property<&T::Points>("Route of a drawn connection."),
        serialize(),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), always<&T::ActualParameter>(),
                           optional<&T::GraphicalConnection>()},
            .children = {items<&T::Points>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::ActualParameter>;
  using LongForm = describe::Extended<Form, &T::GraphicalConnection>;
};

class CMConnections final : public Collection<CMConnections, CMConnection> {
 public:
  static constexpr std::string_view kHelp = "Connections of a control module, in order.";
};

extern template struct describe::Published<CMConnection>;
extern template struct describe::Published<CMConnections>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_CM_CONNECTION_H_
