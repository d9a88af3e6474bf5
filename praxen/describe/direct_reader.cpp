// The pass over a document, with a stack of its own for open elements.
#include "praxen/describe/direct_reader.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <utility>

#include "praxen/describe/description.h"
#include "praxen/describe/reflection.h"
#include "praxen/describe/xml_reading.h"
#include "praxen/xml/xml_cursor.h"
#include "praxen/xml/xml_escape.h"
#include "praxen/xml/xml_limits.h"
#include "praxen/xml/xml_markup.h"

namespace praxen::describe {

namespace {

constexpr size_t kUsualDepth = 16;

bool IsSame(std::u16string_view a, std::u16string_view b) {
  return a.size() == b.size() && detail::AreSame(a.data(), b.data(), a.size());
}

size_t PlaceOf(const std::vector<Attribute>& all, std::u16string_view name) {
  size_t place = 0;
  while (place < all.size() && !IsSame(all[place].name, name)) ++place;
  return place;
}

}  // namespace

/// What a class reads itself, out of the characters.
class DirectReader::Cursor final : public detail::XmlCursor {
 public:
  /// Of a child inside so many elements, of which the innermost may have no content.
  Cursor(XmlScanner& scanner, const Child& child, const char16_t* beforeBlanks, size_t depth,
         bool isEmpty)
      : scanner_(scanner),
        shapes_(child.shapes),
        beforeBlanks_(beforeBlanks),
        start_(scanner.place()),
        depth_(depth),
        isEmpty_(isEmpty) {}

  /// Whether anything was read.
  bool hasMoved() const {
    RequireNoTag();
    return scanner_.place() != start_;
  }

  std::u16string_view name() override { return isAtEnd() ? std::u16string_view() : Peek(); }

  bool isAtEnd() override {
    RequireNoTag();
    if (isEmpty()) return true;
    scanner_.SkipBlanks();
    return scanner_.isAtEndTag();
  }

  std::u16string_view ReadAttribute(std::u16string_view attribute) override {
    TakeName();
    // A class may take an element of any name, but not every name may have the attribute.
    if (!DeclaresAttribute(tag_, attribute)) throw XmlGivenUp();
    if (!scanner_.FindAttribute() || scanner_.TakeAttribute() != attribute) throw XmlGivenUp();
    return scanner_.AttributeValue();
  }

  bool ReadBoolean(std::u16string_view attribute) override {
    return TextToBoolean(ReadAttribute(attribute));
  }

  std::u16string_view ReadText() override {
    TakeName();
    return scanner_.TextOf(std::exchange(tag_, {}));
  }

  std::u16string_view ReadRequiredText(std::u16string_view expected) override {
    if (name() != expected) throw XmlGivenUp();
    const std::u16string_view text = ReadText();
    if (text.empty()) throw XmlGivenUp();
    return text;
  }

  Text ReadMarkup(std::u16string_view) override {
    if (*scanner_.place() == u'<') return scanner_.Markup(depth_);
    // Blanks belong to the text that follows them.
    scanner_.MoveTo(beforeBlanks_);
    const std::u16string_view text = scanner_.Content();
    // Blanks that are referred to are no diagram, either.
    if (detail::IsXmlBlank(text)) throw XmlGivenUp();
    return EscapeXml(text, kEscapedInMarkup);
  }

  void Enter() override {
    TakeName();
    if (scanner_.FindAttribute()) throw XmlGivenUp();
    entered_.push_back({std::exchange(tag_, {}), !scanner_.EndStartTag()});
    // A text may stand one level below.
    if (depth_ + entered_.size() >= kMaxXmlDepth) throw XmlGivenUp();
  }

  // Fewer are missing where they are read.
  void RequireChildren(size_t) override {}

  void Leave() override {
    if (!isAtEnd()) throw XmlGivenUp();
    if (!isEmpty()) scanner_.TakeEndTag(entered_.back().name);
    entered_.pop_back();
  }

 private:
  struct Entered {
    std::u16string_view name;
    bool isEmpty;
  };

  bool isEmpty() const { return entered_.empty() ? isEmpty_ : entered_.back().isEmpty; }
  // The name at the place, which is asked for more than once.
  std::u16string_view Peek() {
    if (peekedAt_ != scanner_.place()) {
      peeked_ = scanner_.PeekName();
      peekedAt_ = scanner_.place();
    }
    return peeked_;
  }
  void TakeName() {
    if (!tag_.empty()) return;
    tag_ = Peek();
    scanner_.TakeName(tag_);
  }
  bool DeclaresAttribute(std::u16string_view element, std::u16string_view attribute) const {
    return std::ranges::any_of(shapes_, [&](const ElementShape& shape) {
      return shape.name == element &&
             std::ranges::find(shape.attributes, attribute) != shape.attributes.end();
    });
  }
  // An element of which an attribute was read is read itself before anything else.
  void RequireNoTag() const {
    if (!tag_.empty()) throw XmlGivenUp();
  }

  XmlScanner& scanner_;
  const std::vector<ElementShape>& shapes_;
  const char16_t* const beforeBlanks_;
  const char16_t* const start_;
  const size_t depth_;
  const bool isEmpty_;
  // The element whose start tag is being read; empty between tags.
  std::u16string_view tag_;
  const char16_t* peekedAt_ = nullptr;
  std::u16string_view peeked_;
  std::vector<Entered> entered_;
};

void DirectReader::Read(Object& object, std::u16string_view name) {
  open_.reserve(kUsualDepth);
  Begin(object, name);
  while (!open_.empty()) ReadNext();
}

// Reads the start tag, and all of the element that holds no elements.
void DirectReader::Begin(Object& object, std::u16string_view name) {
  // A text may stand two levels below.
  if (open_.size() + 3 > kMaxXmlDepth) throw XmlGivenUp();
  const Layout& layout = object.description().layout();
  scanner_.TakeName(name);
  ReadAttributes(object, layout);
  const bool isEmpty = !scanner_.EndStartTag();
  const bool isText =
      layout.children.size() == 1 && layout.children.front().kind == ChildKind::Content;
  if (isText) return ReadContent(object, layout.children.front(), isEmpty ? u"" : name);
  const Open open{&object, &layout, name};
  if (isEmpty) return Finish(open, true);
  open_.push_back(open);
}

void DirectReader::ReadAttributes(Object& object, const Layout& layout) {
  const std::vector<Attribute>& all = layout.attributes;
  const bool isRoot = open_.empty();
  bool isDeclared = !isRoot;
  uint64_t given = 0;
  size_t expected = 0;
  while (scanner_.FindAttribute()) {
    // They mostly come in their order.
    size_t found = expected;
    while (found < all.size() && !scanner_.TakesAttribute(all[found].name)) ++found;
    if (found == all.size()) {
      const std::u16string_view name = scanner_.TakeAttribute();
      found = PlaceOf(all, name);
      if (found == all.size()) {
        ReadDeclaration(name, isDeclared);
        continue;
      }
    }
    const uint64_t bit = uint64_t{1} << found;
    if ((given & bit) != 0) throw XmlGivenUp();
    given |= bit;
    expected = found + 1;
    SetValue(all[found], object, scanner_.AttributeValue(), values_);
  }
  if (!isDeclared || (layout.givenAttributes & ~given) != 0) throw XmlGivenUp();
  for (uint64_t left = layout.emptiedAttributes & ~given; left != 0; left &= left - 1) {
    const Attribute& attribute = all[static_cast<size_t>(std::countr_zero(left))];
    *static_cast<Text*>(ValueOf(attribute, object)) = Text();
  }
}

// The one declaration that is expected is that of the format's namespace, at the root.
void DirectReader::ReadDeclaration(std::u16string_view name, bool& isDeclared) {
  if (isDeclared || name != u"xmlns" || scanner_.AttributeValue() != namespace_) {
    throw XmlGivenUp();
  }
  isDeclared = true;
}

// The next piece of the content of the innermost open element.
void DirectReader::ReadNext() {
  beforeBlanks_ = scanner_.place();
  scanner_.SkipBlanks();
  if (scanner_.isAtEndTag()) {
    const Open closed = open_.back();
    Finish(closed, false);
    scanner_.TakeEndTag(closed.name);
    return open_.pop_back();
  }
  if (scanner_.SkipComment()) return PassComment(open_.back());
  if (*scanner_.place() == u'<') return ReadChild(scanner_.PeekName());
  // Only markup may begin with a text.
  Open& open = open_.back();
  const std::vector<Child>& children = open.layout->children;
  const bool isMarkup = open.child < children.size() && children[open.child].isMarkup;
  if (!isMarkup || !ReadWithCursor(*open.object, children[open.child++], false)) throw XmlGivenUp();
}

void DirectReader::ReadChild(std::u16string_view name) {
  Open& open = open_.back();
  const std::vector<Child>& children = open.layout->children;
  while (open.items == nullptr) {
    if (open.child == children.size()) {
      StartItems(open, *open.object, *open.layout);
    } else if (const Child& child = children[open.child]; child.kind == ChildKind::Items) {
      StartItems(open, *Held(*open.object, child), child.type.object().layout());
    } else {
      ++open.child;
      if (TryChild(*open.object, child, name)) return;
    }
  }
  ReadItem(open, name);
}

// From here on, all elements are the list's.
void DirectReader::StartItems(Open& open, Object& list, const Layout& layout) {
  const bool isLast = open.child + 1 >= open.layout->children.size();
  if (layout.elements.empty() || !isLast) throw XmlGivenUp();
  open.list = &list;
  open.items = &layout;
}

// Whether the child is what the layout says may come.
bool DirectReader::TryChild(Object& object, const Child& child, std::u16string_view name) {
  if (child.kind == ChildKind::Custom) return ReadWithCursor(object, child, false);
  if (child.kind == ChildKind::Content) throw XmlGivenUp();
  if (!IsSame(child.name, name)) {
    // An error where another name stands, or whatever stands there.
    if (child.strict || child.kind == ChildKind::Unnamed) throw XmlGivenUp();
    return false;
  }
  if (child.kind == ChildKind::Text) {
    ReadText(*static_cast<Text*>(ValueOf(child, object)), child);
  } else {
    Begin(HeldOrCreated(object, child), name);
  }
  return true;
}

void DirectReader::ReadItem(const Open& open, std::u16string_view name) {
  for (const Choice& choice : open.items->elements) {
    if (!IsSame(*choice.xmlName, name)) continue;
    const Ref<Object> element = choice.create();
    open.list->Append(element);
    return Begin(*element, name);
  }
  throw XmlGivenUp();
}

// An element that holds a text, perhaps inside another. Without content, the value stays.
void DirectReader::ReadText(Text& value, const Child& child) {
  const auto readText = [&](std::u16string_view name) {
    scanner_.TakeName(name);
    const std::u16string_view text = scanner_.TextOf(name);
    if (!text.empty()) value = Text(text);
  };
  if (child.inner.empty()) return readText(child.name);
  scanner_.TakeName(child.name);
  if (scanner_.FindAttribute()) throw XmlGivenUp();
  if (!scanner_.EndStartTag()) return;
  scanner_.SkipBlanks();
  if (!scanner_.isAtEndTag()) {
    if (scanner_.PeekName() != child.inner) throw XmlGivenUp();
    readText(child.inner);
    scanner_.SkipBlanks();
  }
  scanner_.TakeEndTag(child.name);
}

// The text that is all of an element's content; the name is that of the end tag, if there is one.
void DirectReader::ReadContent(Object& object, const Child& child, std::u16string_view name) {
  const std::u16string_view text = name.empty() ? name : scanner_.Content();
  SetText(*static_cast<Text*>(ValueOf(child, object)), text, values_);
  if (!name.empty()) scanner_.TakeEndTag(name);
}

// Whether the class took what stands there.
bool DirectReader::ReadWithCursor(Object& object, const Child& child, bool isEmpty) {
  Cursor cursor(scanner_, child, beforeBlanks_, open_.size(), isEmpty);
  child.readXML(object, cursor);
  return cursor.hasMoved();
}

// A comment is a node, which lists pass over, but which stands in the way of all that may still
// come otherwise.
void DirectReader::PassComment(const Open& open) {
  const size_t count = open.layout->children.size();
  const bool nextIsList =
      open.child + 1 == count && open.layout->children.back().kind == ChildKind::Items;
  if (open.items == nullptr && open.child != count && !nextIsList) throw XmlGivenUp();
}

// What the layout has left when there are no more elements.
void DirectReader::Finish(const Open& open, bool isEmpty) {
  const std::vector<Child>& children = open.layout->children;
  for (size_t i = open.child; i < children.size(); ++i) {
    if (children[i].kind == ChildKind::Custom) ReadWithCursor(*open.object, children[i], isEmpty);
  }
}

}  // namespace praxen::describe
