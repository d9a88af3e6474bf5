// CMConnection, a connection of a parameter of a control module, and the list of them.
#ifndef PRAXEN_MODEL_POU_CM_CONNECTION_H_
#define PRAXEN_MODEL_POU_CM_CONNECTION_H_

#include "praxen/model/pou/point.h"

namespace praxen {

class CMConnection final : public Serializable<CMConnection> {
 public:
  Text Name, ActualParameter;
  bool GraphicalConnection = false;
  Ref<praxen::Points> Points = New<praxen::Points>();

  static constexpr std::string_view kHelp = "A connection of a parameter of a control module.";
  static Members members() {
    return {
        property<&CMConnection::Name>("Name of the parameter; required for writing."),
        property<&CMConnection::ActualParameter>("What the parameter is connected to."),
        property<&CMConnection::GraphicalConnection>("Whether the connection is drawn."),
        property<&CMConnection::Points>("Route of a drawn connection."),
        serialize(),
    };
  }
  static Layout layout() {
    return {
        .attributes = {required<&CMConnection::Name>(), always<&CMConnection::ActualParameter>(),
                       optional<&CMConnection::GraphicalConnection>()},
        .children = {items<&CMConnection::Points>()}};
  }
  using Form = Creation<CMConnection, &CMConnection::Name, &CMConnection::ActualParameter>;
  using LongForm = Extended<Form, &CMConnection::GraphicalConnection>;
};

class CMConnections final : public Collection<CMConnections, CMConnection> {
 public:
  static constexpr std::string_view kHelp = "Connections of a control module, in order.";
};

extern template const ClassDescription& Describe<CMConnection>();
extern template const ClassDescription& Describe<CMConnections>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_POU_CM_CONNECTION_H_
