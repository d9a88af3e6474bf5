// HWChannel, an input or output channel of a hardware unit, and the list of them.
#ifndef PRAXEN_MODEL_HARDWARE_HW_CHANNEL_H_
#define PRAXEN_MODEL_HARDWARE_HW_CHANNEL_H_

#include "praxen/model/collection.h"

namespace praxen {

class HWChannel final : public describe::Described<HWChannel> {
 public:
  Text Name, Address, Min, Max, Unit, Fraction;
  bool Reversed = false;
  Text ConVariable, IODescription;
  ReadOnly<Text> ChannelType;
  bool IsSignal = false;

  static constexpr std::string_view kHelp = "An input or output channel of a hardware unit.";
  static describe::Members members() {
    using namespace describe;
    return {
        property<&T::Name>("Name of the channel."),
        property<&T::Address>("Address of the channel."),
        property<&T::Min>("Smallest value."),
        property<&T::Max>("Largest value."),
        property<&T::Unit>("Unit of the value."),
        property<&T::Fraction>("Number of decimals."),
        property<&T::Reversed>("Whether the value is reversed."),
        property<&T::ConVariable>("Variable or signal that is connected to the channel."),
        property<&T::IODescription>("Free text."),
        property<&T::ChannelType>("Type of the channel."),
        property<&T::IsSignal>("Whether a signal is connected instead of a variable."),
    };
  }
  static describe::Layout layout();
  static constexpr auto key() { return &T::Address; }
  using Form = describe::Creation<T, &T::Address, &T::Name, &T::ConVariable, &T::IODescription>;
  using LongForm = describe::Extended<Form, &T::Min, &T::Max, &T::Unit, &T::Fraction, &T::Reversed>;

 private:
  void WriteConnection(detail::XMLStringWriter& writer);
  void ReadConnection(detail::XmlCursor& cursor);
};

class HWChannels final : public Collection<HWChannels, HWChannel> {
 public:
  static constexpr std::string_view kHelp = "The channels of a hardware unit, in order.";
  static constexpr std::string_view kArgument = "hwc";
};

extern template struct describe::Published<HWChannel>;
extern template struct describe::Published<HWChannels>;

}  // namespace praxen

#endif  // PRAXEN_MODEL_HARDWARE_HW_CHANNEL_H_
