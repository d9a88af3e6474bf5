// Signal, a named signal of a unit or application, and the list of them.
#ifndef PRAXEN_MODEL_DATA_SIGNAL_H_
#define PRAXEN_MODEL_DATA_SIGNAL_H_

#include "praxen/model/collection.h"

namespace praxen {

class Signal final : public describe::Serializable<Signal> {
 public:
  Text Name, Path;
  Text Direction = u"in"_text;
  Text AcknowledgeGroup, Description;

  static constexpr std::string_view kHelp = "A named signal of a unit or application.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&Signal::Name>("Name of the signal; required for writing."),
        property<&Signal::Path>("Path of the signal."),
        property<&Signal::Direction>("Direction as a free text, such as in or out."),
        property<&Signal::AcknowledgeGroup>("Group in which the signal is acknowledged."),
        property<&Signal::Description>("Free text."),
        serialize(),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&Signal::Name>(), always<&Signal::Path>(),
                           always<&Signal::Direction>(), optional<&Signal::AcknowledgeGroup>()},
            .children = {text<&Signal::Description>()}};
  }
  using Form = describe::Creation<Signal, &Signal::Name, &Signal::Path, &Signal::Direction,
                                  describe::anyValue<&Signal::AcknowledgeGroup>>;
};

class Signals final : public Collection<Signals, Signal> {
 public:
  static constexpr std::string_view kHelp = "Signals, in order.";
};

extern template const describe::ClassDescription& describe::Describe<Signal>();
extern template const describe::ClassDescription& describe::Describe<Signals>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_SIGNAL_H_
