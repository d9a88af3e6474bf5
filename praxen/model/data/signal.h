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
        property<&T::Name>("Name of the signal."),
        property<&T::Path>("Path of the signal."),
        property<&T::Direction>("Direction as a free text, such as in or out."),
        property<&T::AcknowledgeGroup>("Group in which the signal is acknowledged."),
        property<&T::Description>("Free text."),
        serialize(),
    };
  }
  static describe::Layout layout() {
    using namespace describe;
    return {.attributes = {required<&T::Name>(), always<&T::Path>(), always<&T::Direction>(),
                           optional<&T::AcknowledgeGroup>()},
            .children = {text<&T::Description>()}};
  }
  using Form = describe::Creation<T, &T::Name, &T::Path, &T::Direction,
                                  describe::anyValue<&T::AcknowledgeGroup>>;
};

class Signals final : public Collection<Signals, Signal> {
 public:
  static constexpr std::string_view kHelp = "Signals, in order.";
};

extern template struct describe::Published<Signal>;
extern template struct describe::Published<Signals>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_DATA_SIGNAL_H_
