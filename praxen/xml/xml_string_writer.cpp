// The markup that the writer appends.
#include "praxen/xml/xml_string_writer.h"

#include <cstdint>

#include "praxen/core/counters.h"
#include "praxen/core/error.h"
#include "praxen/core/thread_state.h"
#include "praxen/xml/xml_limits.h"

namespace praxen::detail {

namespace {

constexpr int32_t kGrowthStep = 32768;
constexpr int32_t kFirstCapacity = 65536;

// Room for the markup around a name or value, such as ">\r\n</".
constexpr size_t kMostMarkup = 8;

constexpr std::u16string_view kDeclaration = u"<?xml version='1.0' encoding='UTF-16'?>";
constexpr std::u16string_view kNamespace = u" xmlns='PraxenSchema3_0'";

void PutEndTag(XmlPen& pen, std::u16string_view name) {
  pen.Put(u'<');
  pen.Put(u'/');
  pen.Put(name);
  pen.PutStartTagEnd();
}

}  // namespace

XMLStringWriter::XMLStringWriter(Counting counting) : counting_(counting) {
  buffer_.BufferBump(kGrowthStep);
  buffer_.Capacity(kFirstCapacity);
  if (counting == Counting::Yes) CountObject();
}

XMLStringWriter::~XMLStringWriter() {
  if (counting_ == Counting::Yes) UncountObject();
}

void XMLStringWriter::WriteStartDocument() {
  buffer_.Reset();
  depth_ = 0;
  buffer_.Append(kDeclaration);
}

void XMLStringWriter::WriteStartRootElement(std::u16string_view name) {
  XmlPen pen = Pen();
  pen.Reserve(name.size() + kNamespace.size() + kMostMarkup);
  pen.PutLineBreak();
  pen.Put(u'<');
  pen.Put(name);
  pen.Put(kNamespace);
  pen.Finish();
  OpenElement();
}

void XMLStringWriter::WriteStartElement(std::u16string_view name) {
  XmlPen pen = Pen();
  pen.Reserve(name.size() + kMostMarkup);
  CloseStartTag(pen);
  pen.Put(u'<');
  pen.Put(name);
  pen.Finish();
  OpenElement();
}

void XMLStringWriter::WriteEndElement(std::u16string_view name) {
  XmlPen pen = Pen();
  pen.Reserve(name.size() + kMostMarkup);
  if (isEmpty()) {
    pen.PutEmptyElementEnd();
  } else {
    PutEndTag(pen, name);
  }
  pen.Finish();
  CloseElement();
}

void XMLStringWriter::WriteAttributeString(std::u16string_view name, std::u16string_view value) {
  if (value.size() > kMaxXmlAttributeLength) throw Overflow();
  XmlPen pen = Pen();
  pen.Reserve(name.size() + value.size() + kMostMarkup);
  pen.Put(u' ');
  pen.Put(name);
  pen.Put(u'=');
  pen.Put(u'\'');
  pen.PutValue<XmlPlace::Attribute>(value, 1);
  pen.Put(u'\'');
  pen.Finish();
}

void XMLStringWriter::WriteElementString(std::u16string_view name, std::u16string_view value) {
  RequireDepth(1);
  XmlPen pen = Pen();
  const size_t following = name.size() + kMostMarkup;
  pen.Reserve(name.size() + kMostMarkup + value.size() + following);
  CloseStartTag(pen);
  pen.Put(u'<');
  pen.Put(name);
  pen.Put(u'>');
  pen.PutValue<XmlPlace::Content>(value, following);
  PutEndTag(pen, name);
  pen.Finish();
}

void XMLStringWriter::WriteElementValue(std::u16string_view value) {
  XmlPen pen = Pen();
  pen.Reserve(value.size() + kMostMarkup);
  StartContent(pen);
  pen.PutValue<XmlPlace::Content>(value, 0);
  pen.Finish();
}

void XMLStringWriter::WriteXMLElementValue(std::u16string_view markup) {
  XmlPen pen = Pen();
  pen.Reserve(markup.size() + kMostMarkup);
  StartContent(pen);
  pen.Put(markup);
  pen.Finish();
}

void XMLStringWriter::ThrowNestedTooDeep() { throw NestedTooDeep(kMaxXmlDepth); }

struct DocumentWriter::OfThread final : KeptByThread {
  XMLStringWriter writer{XMLStringWriter::Counting::No};
  bool isWriting = false;
};

DocumentWriter::DocumentWriter()
    : own_(ThreadState::Current().Keep<OfThread>()), writer_(&own_.writer) {
  if (own_.isWriting) {
    further_ = std::make_unique<XMLStringWriter>(XMLStringWriter::Counting::No);
    writer_ = further_.get();
  }
  own_.isWriting = true;
}

DocumentWriter::~DocumentWriter() {
  if (further_ == nullptr) own_.isWriting = false;
}

}  // namespace praxen::detail
