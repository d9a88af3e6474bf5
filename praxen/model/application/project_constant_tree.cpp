// Building, writing and reading of the tree of project constants.
#include "praxen/model/application/project_constant_tree.h"

#include "praxen/core/error.h"
#include "praxen/core/text_functions.h"
#include "praxen/core/xml_string_writer.h"
#include "praxen/describe/xml_reading.h"

namespace praxen {

namespace {

constexpr std::u16string_view kEntry = u"ProjectConstant";
constexpr std::u16string_view kGroup = u"ProjectConstants";

Error MissingContent(const XmlNode& node) {
  return MissingObject(u"The content of \""_text + node.nodeName() + u"\" is missing")
      .At(PlaceOf(node));
}

std::u16string_view RequiredText(const XmlNode& node) {
  const std::u16string_view text = node.firstChild().nodeValue();
  if (text.empty()) throw MissingContent(node);
  return text;
}

}  // namespace

intProjectConstant& intProjectConstants::NewLevel(intProjectConstant* group) {
  intProjectConstant& level = entries_.emplace_back();
  level.group = group;
  places_.emplace(NameSegment{&level, level.Name}, &level);
  return level;
}

intProjectConstant& intProjectConstants::NewEntry(intProjectConstant& level,
                                                  std::u16string_view name) {
  intProjectConstant* entry = &level;
  if (level.IsUnused) {
    places_.erase({&level, level.Name});
  } else {
    entry = &entries_.emplace_back();
    entry->group = level.group;
    level.lastSibling->nextSibling = entry;
    level.lastSibling = entry;
  }
  entry->IsUnused = false;
  entry->Name = name;
  places_.emplace(NameSegment{&level, name}, entry);
  return *entry;
}

// A name may have any number of segments, so the levels are followed in a loop.
void intProjectConstants::AddRecursive(intProjectConstant& level, std::u16string_view name,
                                       const Text& type, const Text& value) {
  for (intProjectConstant* at = &level;;) {
    const std::u16string_view first = TextBeforeFirstDot(name);
    name = TextAfterFirstDot(name);
    const auto found = places_.find({at, first});
    const bool isNew = found == places_.end();
    intProjectConstant& entry = isNew ? NewEntry(*at, first) : *found->second;
    if (name.empty()) {
      if (!isNew) return;
      entry.Type = type;
      entry.Value = value;
      return;
    }
    if (entry.SubLevel == nullptr) {
      entry.SubLevel = &NewLevel(&entry);
      entry.IsUnused = false;
    }
    at = entry.SubLevel;
  }
}

void intProjectConstants::Write(XMLStringWriter& writer, const ProjectConstants& list) {
  if (list.Count() == 0) return;
  // Most entries are constants; the groups come on top.
  places_.reserve(static_cast<size_t>(list.Count()) / 8 * 9);
  intProjectConstant& root = NewLevel(nullptr);
  for (const ProjectConstant& constant : list) {
    AddRecursive(root, constant.Name.get(), constant.PCType, constant.Value);
  }
  const intProjectConstant* entry = &root;
  while (entry != nullptr) {
    writer.WriteStartElement(kEntry);
    writer.WriteAttributeString(u"Name", entry->Name);
    if (entry->SubLevel != nullptr) {
      writer.WriteStartElement(kGroup);
      entry = entry->SubLevel;
      continue;
    }
    writer.WriteElementString(u"Type", entry->Type);
    writer.WriteElementString(u"Value", entry->Value);
    writer.WriteEndElement(kEntry);
    while (entry->nextSibling == nullptr && entry->group != nullptr) {
      entry = entry->group;
      writer.WriteEndElement(kGroup);
      writer.WriteEndElement(kEntry);
    }
    entry = entry->nextSibling;
  }
}

void intProjectConstants::Read(XmlNode first, ProjectConstants& list) {
  ReadLevel(first, list, {});
}

void intProjectConstants::ReadLevel(XmlNode node, ProjectConstants& list, const Text& prefix) {
  const Text path = prefix.empty() ? prefix : prefix + u".";
  for (; node; node = node.nextSibling()) {
    const Text name = path + RequiredAttribute(node, u"Name");
    name_characters_ += name.size();
    if (name_characters_ > kMostNameCharacters) throw Overflow().At(PlaceOf(node));
    const XmlNode child = node.firstChild();
    if (child.nodeName() == kGroup) {
      ReadLevel(child.firstChild(), list, name);
    } else {
      ReadConstant(name, node, list);
    }
  }
}

void intProjectConstants::ReadConstant(const Text& name, const XmlNode& node,
                                       ProjectConstants& list) {
  // Whatever stands in the two places is taken for the type and the value.
  const XmlNode type = node.firstChild();
  const XmlNode value = type.nextSibling();
  if (!value) throw MissingContent(node);
  const Text typeText = RequiredText(type);
  list.Add(ProjectConstant::Form()(name, typeText, RequiredText(value)));
}

}  // namespace praxen
