// The connected variable of a channel, whose element also tells whether it is a signal.
#include "praxen/model/hardware/hw_channel.h"

#include "praxen/xml/xml_cursor.h"
#include "praxen/xml/xml_string_writer.h"

namespace praxen {

using namespace detail;

namespace {

constexpr std::u16string_view kConnection = u"ConVariable";
constexpr std::u16string_view kIsSignal = u"Signal";

}  // namespace

Layout HWChannel::layout() {
  Child description = strictText<&T::IODescription>();
  description.always = true;
  return {.attributes = {required<&T::Address>(), required<&T::Name>(), readOnly<&T::ChannelType>(),
                         optional<&T::Min>(), optional<&T::Max>(), optional<&T::Unit>(),
                         optional<&T::Fraction>(), optional<&T::Reversed>()},
          .children = {custom<&T::WriteConnection, &T::ReadConnection>(
                           "The connected variable, and whether it is a signal.",
                           {{std::u16string(kConnection),
                             ElementShape::Content::Text,
                             {std::u16string(kIsSignal)}}}),
                       description}};
}

void HWChannel::WriteConnection(XMLStringWriter& writer) {
  writer.WriteStartElement(kConnection);
  writer.WriteAttributeString(kIsSignal, IsSignal ? u"1" : u"0");
  writer.WriteElementValue(ConVariable);
  writer.WriteEndElement(kConnection);
}

void HWChannel::ReadConnection(XmlCursor& cursor) {
  if (cursor.name() != kConnection) return;
  IsSignal = cursor.ReadBoolean(kIsSignal);
  ConVariable = cursor.ReadText();
}

}  // namespace praxen
