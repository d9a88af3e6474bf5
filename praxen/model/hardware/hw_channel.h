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
        property<&HWChannel::Name>("Name of the channel; required for writing."),
        property<&HWChannel::Address>("Address of the channel; required for writing."),
        property<&HWChannel::Min>("Smallest value."),
        property<&HWChannel::Max>("Largest value."),
        property<&HWChannel::Unit>("Unit of the value."),
        property<&HWChannel::Fraction>("Number of decimals."),
        property<&HWChannel::Reversed>("Whether the value is reversed."),
        property<&HWChannel::ConVariable>("Variable or signal that is connected to the channel."),
        property<&HWChannel::IODescription>("Free text."),
        property<&HWChannel::ChannelType>("Type of the channel, as the engineering tool found it."),
        property<&HWChannel::IsSignal>("Whether a signal is connected instead of a variable."),
    };
  }
  static describe::Layout layout();
  static constexpr auto key() { return &HWChannel::Address; }
  using Form = describe::Creation<HWChannel, &HWChannel::Address, &HWChannel::Name,
                                  &HWChannel::ConVariable, &HWChannel::IODescription>;
  using LongForm = describe::Extended<Form, &HWChannel::Min, &HWChannel::Max, &HWChannel::Unit,
                                      &HWChannel::Fraction, &HWChannel::Reversed>;

 private:
  void WriteConnection(detail::XMLStringWriter& writer);
  void ReadConnection(detail::XmlNode& cursor);
};

class HWChannels final : public Collection<HWChannels, HWChannel> {
 public:
  static constexpr std::string_view kHelp = "The channels of a hardware unit, in order.";
  static constexpr std::string_view kArgument = "hwc";
};

extern template const describe::ClassDescription& describe::Describe<HWChannel>();
extern template const describe::ClassDescription& describe::Describe<HWChannels>();

}  // namespace praxen

#endif  // PRAXEN_MODEL_HARDWARE_HW_CHANNEL_H_
