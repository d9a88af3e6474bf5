// The class that a document's root stands for.
#include "praxen/factory/read_document.h"

#include <algorithm>
#include <string_view>

#include "praxen/core/error.h"
#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"
#include "praxen/factory/direct_reading.h"
#include "praxen/factory/object_factory.h"
#include "praxen/factory/reading_frame.h"

namespace praxen::detail {

namespace {

constexpr std::string_view kReadingPrefix = "Deserialize";

std::vector<const ClassDescription*> FindDocumentClasses() {
  std::vector<const ClassDescription*> classes;
  for (const Member& member : Describe<ObjectFactory>().members) {
    if (!member.name.starts_with(kReadingPrefix)) continue;
    std::ranges::copy_if(ClassesOf(member.type.object()), std::back_inserter(classes),
                         [](const ClassDescription* result) { return IsDocument(*result); });
  }
  return classes;
}

bool KnowsAttribute(const Layout& layout, std::u16string_view name) {
  return name.starts_with(u"xmlns") ||
         std::ranges::find(layout.attributes, name, &Attribute::name) != layout.attributes.end();
}

bool KnowsChild(const Layout& layout, std::u16string_view name) {
  return std::ranges::find(layout.children, name, &Child::name) != layout.children.end();
}

// How much the document gives that a class has no place for.
size_t CountUnknown(const Layout& layout, const XmlNode& root) {
  size_t unknown = 0;
  for (const XmlAttribute& attribute : root.attributes()) {
    if (attribute.specified && !KnowsAttribute(layout, *attribute.name)) ++unknown;
  }
  for (XmlNode child = root.firstChild(); child; child = child.nextSibling()) {
    if (!KnowsChild(layout, child.nodeName())) ++unknown;
  }
  return unknown;
}

std::vector<const ClassDescription*> ClassesOfRoot(std::u16string_view root) {
  std::vector<const ClassDescription*> classes;
  std::ranges::copy_if(
      DocumentClasses(), std::back_inserter(classes),
      [&](const ClassDescription* each) { return each->layout().element == root; });
  return classes;
}

const ClassDescription& ClassOf(const XmlNode& root) {
  const std::vector<const ClassDescription*> candidates = ClassesOfRoot(root.nodeName());
  if (candidates.empty()) {
    throw WrongRootElement(root.nodeName(), u"a document of the exchange format").At(root.place());
  }
  if (candidates.size() == 1) return *candidates.front();
  return **std::ranges::min_element(candidates, {}, [&](const ClassDescription* candidate) {
    return CountUnknown(candidate->layout(), root);
  });
}

}  // namespace

const ClassDescription* FirstDocumentClass(std::u16string_view root) {
  const std::vector<const ClassDescription*> classes = ClassesOfRoot(root);
  return classes.empty() ? nullptr : classes.front();
}

const std::vector<const ClassDescription*>& DocumentClasses() {
  static const std::vector<const ClassDescription*> classes = FindDocumentClasses();
  return classes;
}

}  // namespace praxen::detail

namespace praxen {

using namespace detail;

Ref<Object> ReadDocument(const Text& text, Losses* losses) {
  if (losses == nullptr && UsesDirectReading()) {
    if (Ref<Object> object = ReadDirectly(text)) return object;
  }
  const LoadedDocument document(text);
  const ClassDescription& description = ClassOf(document.root());
  // Raises an error when the root has the right name in a wrong namespace.
  document.IsRoot(description.layout().element);
  Ref<Object> object = description.create();
  document.ReadRoot(*object, losses);
  return object;
}

}  // namespace praxen
