// Whether what was read means what the document says, by the layout of the class.
#include "praxen/describe/loss_recording.h"

#include <algorithm>

#include "praxen/core/ascii.h"
#include "praxen/core/numbers.h"
#include "praxen/describe/description.h"
#include "praxen/describe/reflection.h"
#include "praxen/describe/xml_writing.h"

namespace praxen::describe {

namespace {

bool Means(bool value, std::u16string_view given) {
  const std::u16string_view word = value ? u"true" : u"false";
  return given == (value ? u"1" : u"0") || EqualsIgnoringCase(word, given);
}

bool Means(const EnumerationValue<const int32_t>& value, std::u16string_view given) {
  const EnumerationDescription& description = value.description;
  const auto isSpelling = [&](const EnumerationConstant& spelling) {
    return spelling.value == value.number && EqualsIgnoringCase(spelling.text, given);
  };
  return EqualsIgnoringCase(description.ToText(value.number), given) ||
         std::ranges::any_of(description.spellings, isSpelling);
}

// A number that is too small for a double is read as zero.
bool Means(double value, std::u16string_view given) {
  const std::u16string_view digits = given.substr(0, given.find_first_of(u"eE"));
  return value != 0 || digits.find_first_of(u"123456789") == std::u16string_view::npos;
}

// Another text of the same value, such as "1.0" or "true", is no loss.
bool MeansTheSame(const Attribute& attribute, const void* value, std::u16string_view given) {
  return VisitValue(
      attribute.type, value,
      Overloaded{
          [&](const Text& text) { return text == given; },
          [&](const bool& isTrue) { return Means(isTrue, given); },
          [&](const EnumerationValue<const int32_t>& constant) { return Means(constant, given); },
          [&](const double& number) { return Means(number, given); },
          [&](const int32_t& number) { return XMLTextToDouble(given) == number; }});
}

void RecordAttribute(Object& object, const Attribute& attribute, const XmlNode& node,
                     const XmlAttribute& given) {
  LossRecorder& recorder = *node.recorder();
  recorder.Take(given);
  const void* const value = ValueOf(attribute, object);
  const Text written = AttributeText(attribute, value);
  if (!MeansTheSame(attribute, value, given.value())) {
    recorder.ReadAs(node, given, Trim<char16_t>(written.view(), u" "));
  } else if (attribute.rule == Rule::ReadOnly && written != attribute.absentText) {
    recorder.Note(LossKind::NotWritten, node,
                  u"'" + attribute.name + u"' is only read; writing leaves it out", &given);
  }
}

void RecordAttributes(Object& object, const Layout& layout, const XmlNode& node) {
  for (const Attribute& attribute : layout.attributes) {
    const XmlAttribute* const given = node.attribute(attribute.xmlName);
    if (given != nullptr) RecordAttribute(object, attribute, node, *given);
  }
}

bool IsRun(const Child& child) { return child.kind == ChildKind::Items; }

// Whether the layout has a place for children of that name; elements of lists are read wherever
// they stand.
bool HasPlaceFor(const Layout& layout, std::u16string_view name) {
  return std::ranges::any_of(layout.children, [&](const Child& child) {
    return (child.name == name && !IsRun(child)) ||
           std::ranges::find(child.shapes, name, &ElementShape::name) != child.shapes.end();
  });
}

}  // namespace

void RecordElement(Object& object, const Layout& layout, const XmlNode& node) {
  LossRecorder& recorder = *node.recorder();
  const bool takesEvery = !layout.elements.empty() || std::ranges::any_of(layout.children, IsRun);
  recorder.Take(node, takesEvery ? LossRecorder::Walk::Every : LossRecorder::Walk::Ordered);
  RecordAttributes(object, layout, node);
  for (XmlNode child = node.firstChild(); child; child = child.nextSibling()) {
    const bool isPassed = child.kind() == XmlNodeKind::Element && !recorder.isTaken(child);
    if (isPassed && HasPlaceFor(layout, child.nodeName())) recorder.Misplace(child);
  }
}

void RecordText(const Text& value, const Child& child, const XmlNode& node) {
  LossRecorder& recorder = *node.recorder();
  recorder.Take(node);
  const XmlNode inner = node.firstChild();
  if (!child.inner.empty() && inner && inner.kind() == XmlNodeKind::Element) {
    recorder.Take(inner);
    recorder.ReadAs(inner, child.inner);
  }
  if (child.writtenAs != nullptr && child.writtenAs(value) != value) {
    recorder.Note(
        LossKind::NotWritten, node,
        u"entity texts in '" + child.name + u"' are written as the characters that they stand for");
  }
}

void RecordBoolean(bool value, const XmlNode& node, const XmlAttribute& attribute) {
  if (!Means(value, attribute.value())) {
    node.recorder()->ReadAs(node, attribute, value ? u"1" : u"0");
  }
}

}  // namespace praxen::describe
