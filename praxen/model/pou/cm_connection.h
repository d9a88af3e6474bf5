// CMConnection, a connection of a parameter of a control module, and the list of them.
#ifndef PRAXEN_MODEL_POU_CM_CONNECTION_H_
#define PRAXEN_MODEL_POU_CM_CONNECTION_H_

#include "praxen/model/pou/point.h"

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
        property<&CMConnection::Name>("Name of the parameter; required for writing."),
        property<&CMConnection::ActualParameter>("What the parameter is connected to."),
        property<&CMConnection::GraphicalConnection>("Whether the connection is drawn."),
        property<&CMConnection::Points>("Route of a drawn connection."),
        serialize(),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {
        .attributes = {required<&CMConnection::Name>(), always<&CMConnection::ActualParameter>(),
                       optional<&CMConnection::GraphicalConnection>()},
        .children = {items<&CMConnection::Points>()}};
  }
  using Form =
      describe::Creation<CMConnection, &CMConnection::Name, &CMConnection::ActualParameter>;
  using LongForm = describe::Extended<Form, &CMConnection::GraphicalConnection>;
};

class CMConnections final : public Collection<CMConnections, CMConnection> {
 public:
  static constexpr std::string_view kHelp = "Connections of a control module, in order.";
};

extern template const describe::ClassDescription& describe::Describe<CMConnection>();
extern template const describe::ClassDescription& describe::Describe<CMConnections>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_CM_CONNECTION_H_
