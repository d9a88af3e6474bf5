// ConnectedApplication, an application that another is connected to, and the list of them.
#ifndef PRAXEN_MODEL_APPLICATION_CONNECTED_APPLICATION_H_
#define PRAXEN_MODEL_APPLICATION_CONNECTED_APPLICATION_H_

#include "praxen/model/application/connected_item.h"

namespace praxen {

class ConnectedApplication final : public ConnectedItem<ConnectedApplication> {
 public:
  static constexpr std::string_view kHelp = "An application that another is connected to.";
};

class ConnectedApplications final
    : public ConnectedItems<ConnectedApplications, ConnectedApplication> {
 public:
  static constexpr std::string_view kHelp =
      "The applications that an application is connected to, in order.";
};

extern template const describe::ClassDescription& describe::Describe<ConnectedApplication>();
extern template const describe::ClassDescription& describe::Describe<ConnectedApplications>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_CONNECTED_APPLICATION_H_
