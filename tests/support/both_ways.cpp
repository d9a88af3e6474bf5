// The comparison of all that objects hold.
#include "tests/support/both_ways.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <functional>
#include <map>

#include "praxen/core/ascii.h"
#include "praxen/core/counters.h"
#include "praxen/core/error.h"
#include "praxen/core/locale.h"
#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"
#include "praxen/factory/read_document.h"
#include "praxen/xml/xml_string_writer.h"
#include "tests/support/xml_mutation.h"

namespace praxen::detail {

namespace {

template <class Number>
std::u16string Digits(Number number) {
  char digits[24];
  const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  return WidenAscii({digits, end});
}

std::u16string WrittenText(Object& object) {
  try {
    XMLStringWriter writer;
    object.WriteXML(writer);
    return std::u16string(writer.ToXMLString().view());
  } catch (const Error& error) {
    return u"error " + Digits(error.number()) + u": " + std::u16string(error.description().view());
  }
}

// All that an object holds as lines of text; an object that was there before is a number.
class Outline {
 public:
  explicit Outline(Object& object) { Add(u"root", &object); }

  std::u16string text;

 private:
  void Add(std::u16string_view name, Object* object) {
    text.append(name).append(u": ");
    if (object == nullptr) return Line(u"none");
    const auto [found, isNew] = numbers_.try_emplace(object, numbers_.size());
    if (!isNew) return Line(u"object " + Digits(found->second));
    const ClassDescription& description = object->description();
    Line(WidenAscii(description.name) + u" with " + Digits(object->references()) + u" references");
    text += u"{\n";
    for (const Member& member : description.members) AddMember(*object, member);
    for (const Attribute& attribute : AttributesOf(description)) {
      if (attribute.member == nullptr) AddPlain(*object, attribute);
    }
    for (const Child& child : ChildrenOf(description)) {
      if (child.member != nullptr) continue;
      if (IsObject(child.type)) {
        Add(child.name, Held(*object, child));
      } else if (IsValue(child.type)) {
        AddPlain(*object, child);
      }
    }
    for (const Ref<Object>& element : ElementsOf(*object)) Add(u"element", element.get());
    text += u"}\n";
  }

  void AddMember(Object& object, const Member& member) {
    const std::u16string name = WidenAscii(member.name);
    if (IsKeptObject(member)) return Add(name, Held(object, member));
    if (!IsKeptValue(member)) return;
    VisitProperty(object, member, [&](const auto& value) { AddValue(name, value); });
  }

  // A value that is not published.
  template <class Entry>
  void AddPlain(Object& object, const Entry& entry) {
    const void* const address = ValueOf(entry, object);
    VisitValue(entry.type, address, [&](const auto& value) { AddValue(entry.name, value); });
  }

  void AddValue(std::u16string_view name, const Text& value) { AddLine(name, value.view()); }
  void AddValue(std::u16string_view name, const int32_t& value) { AddLine(name, Digits(value)); }
  void AddValue(std::u16string_view name, const bool& value) {
    AddLine(name, value ? u"true" : u"false");
  }
  // Bit by bit, so that no zero is like another.
  void AddValue(std::u16string_view name, const double& value) {
    AddLine(name, Digits(std::bit_cast<uint64_t>(value)));
  }

  void AddLine(std::u16string_view name, std::u16string_view value) {
    text.append(name).append(u": ");
    Line(value);
  }
  void Line(std::u16string_view line) { text.append(line).append(u"\n"); }

  std::map<const Object*, size_t> numbers_;
};

std::u16string OutlineOf(Object& object) {
  return Outline(object).text + u"written: " + WrittenText(object);
}

// What reading gives: the outline of the object, or the error.
std::u16string OutcomeOf(const std::function<Ref<Object>()>& read) {
  try {
    const Ref<Object> object = read();
    return OutlineOf(*object);
  } catch (const Error& error) {
    return u"error " + Digits(error.number()) + u" at " + PlaceText(error.place()) + u": " +
           std::u16string(error.description().view()) + u"; " +
           std::u16string(error.detail().view());
  }
}

// Only what lies around the first difference.
std::string Difference(std::string_view what, std::u16string_view direct,
                       std::u16string_view reference) {
  if (direct == reference) return {};
  const auto places = std::ranges::mismatch(direct, reference);
  const auto at = static_cast<size_t>(places.in1 - direct.begin());
  const size_t start = at < 100 ? 0 : at - 100;
  return std::string(what) + "\ndirect    …" + ToUtf8(direct.substr(start, 250)) + "\nreference …" +
         ToUtf8(reference.substr(start, 250));
}

std::string CompareByRoot(const Text& text, BothWays& ways) {
  std::u16string reference;
  {
    const WayOfReading way(false);
    reference = OutcomeOf([&] { return ReadDocument(text); });
  }
  const int32_t before = ObjectCounter();
  std::u16string direct;
  if (const Ref<Object> object = ReadDirectly(text)) {
    ways.isDirect = true;
    direct = OutlineOf(*object);
  }
  if (ObjectCounter() != before) return "objects stay";
  return ways.isDirect ? Difference("ReadDirectly", direct, reference) : std::string();
}

// By an operation that takes whichever way it can.
std::string CompareOperation(std::string_view what, const std::function<Ref<Object>()>& read) {
  std::u16string outcomes[2];
  for (const bool isDirect : {false, true}) {
    const WayOfReading way(isDirect);
    outcomes[isDirect] = OutcomeOf(read);
  }
  return Difference(what, outcomes[true], outcomes[false]);
}

// A name may be that of two classes.
std::string CompareByClass(const Text& text) {
  const std::u16string name = RootName(text.utf8());
  for (const ClassDescription& description : AllClasses()) {
    if (!IsDocument(description) || description.layout().element != name) continue;
    std::string difference =
        CompareOperation(description.name, [&] { return DeserializeObject(description, text); });
    if (difference.empty() && description.kind == &Describe<ICodeBlock>()) {
      difference = CompareOperation(
          "code block", [&]() -> Ref<Object> { return CodeBlockDeserialization()(text); });
    }
    if (!difference.empty()) return difference;
  }
  return {};
}

}  // namespace

DecimalComma::DecimalComma() {
  SetDecimalSeparatorQuery([] { return std::u16string(u","); });
}

DecimalComma::~DecimalComma() { SetDecimalSeparatorQuery(nullptr); }

BothWays ReadBothWays(const Text& text) {
  BothWays ways;
  ways.difference = CompareByRoot(text, ways);
  if (ways.difference.empty()) ways.difference = CompareByClass(text);
  return ways;
}

}  // namespace praxen::detail
