// ConnectedHWLibrary, a hardware library that an application is connected to, and the list of them.
#ifndef PRAXEN_MODEL_APPLICATION_CONNECTED_HW_LIBRARY_H_
#define PRAXEN_MODEL_APPLICATION_CONNECTED_HW_LIBRARY_H_

#include "praxen/model/application/connected_item.h"

namespace praxen {

class ConnectedHWLibrary final : public ConnectedItem<ConnectedHWLibrary> {
 public:
  static constexpr std::string_view kHelp =
      "A hardware library that an application is connected to.";
  static constexpr const char16_t* kElement = u"ConnectedHardwareLibrary";
};

class ConnectedHWLibraries final : public ConnectedItems<ConnectedHWLibraries, ConnectedHWLibrary> {
 public:
  static constexpr std::string_view kHelp =
      "The hardware libraries that an application is connected to, in order.";
  static constexpr const char16_t* kElement = u"ConnectedHardwareLibraries";
};

extern template const describe::ClassDescription& describe::Describe<ConnectedHWLibrary>();
extern template const describe::ClassDescription& describe::Describe<ConnectedHWLibraries>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_APPLICATION_CONNECTED_HW_LIBRARY_H_
