// ConnectedLibrary, a library that an application is connected to, and the list of them.
#ifndef PRAXEN_MODEL_APPLICATION_CONNECTED_LIBRARY_H_
#define PRAXEN_MODEL_APPLICATION_CONNECTED_LIBRARY_H_

#include "praxen/model/application/connected_item.h"

namespace praxen {

class ConnectedLibrary final : public ConnectedItem<ConnectedLibrary> {
 public:
  static constexpr std::string_view kHelp = "A library that an application is connected to.";
};

class ConnectedLibraries final : public ConnectedItems<ConnectedLibraries, ConnectedLibrary> {
 public:
  static constexpr std::string_view kHelp =
      "The libraries that an application is connected to, in order.";
};

extern template const describe::ClassDescription& describe::Describe<ConnectedLibrary>();
extern template const describe::ClassDescription& describe::Describe<ConnectedLibraries>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_CONNECTED_LIBRARY_H_
