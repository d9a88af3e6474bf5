// What no walk has taken, and the sentences that tell of it.
#include "praxen/xml/loss_recorder.h"

#include <algorithm>
#include <utility>

#include "praxen/xml/xml_markup.h"

namespace praxen::detail {
namespace {

// A value is shown up to this many characters.
constexpr size_t kShown = 40;

std::u16string Quoted(std::u16string_view text) {
  const bool isCut = text.size() > kShown;
  std::u16string quoted = u"'";
  return quoted.append(text.substr(0, kShown)).append(isCut ? u"…'" : u"'");
}

bool IsElement(const XmlNode& node) { return node.kind() == XmlNodeKind::Element; }

// Whether the node is content: an element, or a text that is more than blanks.
bool IsContent(const XmlNode& node) {
  if (node.kind() == XmlNodeKind::Text) return !IsXmlBlank(node.nodeValue());
  return IsElement(node);
}

std::u16string_view NoteName(const XmlNode& node) {
  return node.kind() == XmlNodeKind::Comment ? u"a comment" : u"a processing instruction";
}

// What tells the parser something and says nothing of the element: namespaces and schemas.
bool IsForParser(const XmlAttribute& attribute) {
  const std::u16string_view name = *attribute.name;
  const std::u16string_view local = name.substr(name.find(u':') + 1);
  return DeclaresXmlNamespace(name) || local == u"schemaLocation" ||
         local == u"noNamespaceSchemaLocation";
}

}  // namespace

LossRecorder::LossRecorder(XmlDocument& document)
    : document_(document), marks_(document.size(), Mark::Passed) {
  document.Record(this);
}

void LossRecorder::Take(const XmlNode& element, Walk walk) {
  MarkOf(element) = walk == Walk::Every ? Mark::TakenByEvery : Mark::Taken;
}

void LossRecorder::TakeText(const XmlNode& element) {
  Take(element);
  const XmlNode first = element.firstChild();
  if (!first || IsElement(first) || isTaken(first)) return;
  MarkOf(first) = Mark::Taken;
  NoteContent(first, element.nodeName());
}

void LossRecorder::TakeMarkup(const XmlNode& content, std::u16string_view element) {
  MarkOf(content) = Mark::TakenWhole;
  if (!IsElement(content)) NoteContent(content, element);
}

void LossRecorder::NoteContent(const XmlNode& content, std::u16string_view element) {
  const bool isText = content.kind() == XmlNodeKind::Text;
  if (isText ? !IsXmlBlank(content.nodeValue()) : content.nodeValue().empty()) return;
  std::u16string sentence(isText ? u"blanks" : NoteName(content));
  sentence += isText ? u" were read as the content of " : u" was read as the content of ";
  Add(LossKind::Changed, content, nullptr, element, sentence + Quoted(element));
}

void LossRecorder::ReadAs(const XmlNode& element, const XmlAttribute& attribute,
                          std::u16string_view value) {
  Note(LossKind::Changed, element,
       Quoted(*attribute.name) + u" is " + Quoted(attribute.value()) + u", which was read as " +
           Quoted(value),
       &attribute);
}

void LossRecorder::ReadAs(const XmlNode& element, std::u16string_view name) {
  if (element.nodeName() == name) return;
  Note(LossKind::Changed, element, Quoted(element.nodeName()) + u" was read as " + Quoted(name));
}

void LossRecorder::Note(LossKind kind, const XmlNode& element, std::u16string_view sentence,
                        const XmlAttribute* attribute) {
  Add(kind, element, attribute, attribute == nullptr ? element.nodeName() : *attribute->name,
      sentence);
}

// The place is counted when all are known, in one walk over the text.
void LossRecorder::Add(LossKind kind, const XmlNode& node, const XmlAttribute* attribute,
                       std::u16string_view name, std::u16string_view sentence) {
  const size_t offset = attribute == nullptr ? node.offset() : node.offsetOf(*attribute);
  found_.push_back({offset, {kind, name, {}, sentence}});
}

Losses LossRecorder::Find() {
  std::ranges::sort(attributes_);
  for (uint32_t number = 0; number < marks_.size(); ++number) {
    if (marks_[number] != Mark::Taken && marks_[number] != Mark::TakenByEvery) continue;
    const XmlNode node = document_.node(number);
    if (!IsElement(node)) continue;
    FindPassedAttributes(node);
    FindPassedChildren(node);
  }
  std::ranges::stable_sort(found_, {}, &Found::offset);
  Losses losses;
  losses.reserve(found_.size());
  PlaceCounter places(document_.source());
  for (Found& found : found_) {
    found.loss.place = places.At(found.offset);
    losses.push_back(std::move(found.loss));
  }
  found_.clear();
  return losses;
}

void LossRecorder::FindPassedAttributes(const XmlNode& element) {
  for (const XmlAttribute& attribute : element.attributes()) {
    if (!attribute.specified || IsForParser(attribute)) continue;
    if (std::ranges::binary_search(attributes_, &attribute)) continue;
    Note(LossKind::NotRead, element, Quoted(*attribute.name) + u" was not read", &attribute);
  }
}

void LossRecorder::FindPassedChildren(const XmlNode& element) {
  const bool takesEvery = MarkOf(element) == Mark::TakenByEvery;
  const auto isLost = [&](const XmlNode& child) { return !isTaken(child) && IsContent(child); };
  XmlNode before;
  for (XmlNode child = element.firstChild(); child;
       before = std::exchange(child, child.nextSibling())) {
    if (!isLost(child)) continue;
    const std::u16string_view name = IsElement(child) ? child.nodeName() : element.nodeName();
    std::u16string sentence = (IsElement(child) ? u"" : u"text in ") + Quoted(name);
    XmlNode next = takesEvery ? XmlNode() : child.nextSibling();
    while (next && !isLost(next)) next = next.nextSibling();
    sentence += next ? u" and what follows it was not read" : u" was not read";
    Add(LossKind::NotRead, child, nullptr, name, sentence + Cause(element, child, before));
    if (!takesEvery) return;
  }
}

// Where every known child is read, only an element that the walk before it would have known is kept
// from being read by what stands before it.
std::u16string LossRecorder::Cause(const XmlNode& element, const XmlNode& passed,
                                   const XmlNode& before) const {
  const bool isMisplaced = marks_[passed.number()] == Mark::Misplaced;
  const bool takesEvery = marks_[element.number()] == Mark::TakenByEvery;
  const bool isNote = before && !IsContent(before) && before.kind() != XmlNodeKind::Text;
  if (isNote && (isMisplaced || !takesEvery)) {
    return std::u16string(u"; ").append(NoteName(before)).append(u" stands before it");
  }
  if (isMisplaced) return u"; it stands out of place";
  return u"; " + Quoted(element.nodeName()) + u" has no place for it";
}

}  // namespace praxen::detail
