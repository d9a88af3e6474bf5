// Building, writing and reading of the tree of project constants.
#include "praxen/model/application/project_constant_tree.h"

#include "praxen/core/error.h"
#include "praxen/core/seeded_hash.h"
#include "praxen/core/text_functions.h"
#include "praxen/describe/xml_reading.h"
#include "praxen/model/application/ordered_constants.h"
#include "praxen/xml/loss_recorder.h"
#include "praxen/xml/xml_string_writer.h"

namespace praxen::detail {

namespace {

constexpr std::u16string_view kEntry = u"ProjectConstant";
constexpr std::u16string_view kGroup = u"ProjectConstants";

// So many entries of a level are searched one after the other.
constexpr size_t kMostSearched = 8;

std::unique_ptr<EntryTable> TableOf(intProjectConstant& level) {
  auto table = std::make_unique<EntryTable>();
  for (auto* entry = &level; entry != nullptr; entry = entry->nextSibling) table->Add(*entry);
  return table;
}

intProjectConstant* Find(intProjectConstant& level, std::u16string_view name) {
  if (level.table != nullptr) return level.table->Find(name);
  intProjectConstant* entry = &level;
  while (entry != nullptr && entry->Name != name) entry = entry->nextSibling;
  return entry;
}

}  // namespace

void EntryTable::Add(intProjectConstant& entry) {
  if (2 * (count_ + 1) > slots_.size()) Grow();
  const size_t hash = SeededHash(entry.Name);
  FreeSlot(hash) = {hash, &entry};
  ++count_;
}

intProjectConstant* EntryTable::Find(std::u16string_view name) const noexcept {
  const size_t hash = SeededHash(name);
  for (size_t at = hash;; ++at) {
    const Slot& slot = slots_[at & (slots_.size() - 1)];
    if (slot.entry == nullptr || (slot.hash == hash && slot.entry->Name == name)) return slot.entry;
  }
}

EntryTable::Slot& EntryTable::FreeSlot(size_t hash) noexcept {
  size_t at = hash;
  while (slots_[at & (slots_.size() - 1)].entry != nullptr) ++at;
  return slots_[at & (slots_.size() - 1)];
}

void EntryTable::Grow() {
  std::vector<Slot> former(2 * slots_.size());
  former.swap(slots_);
  for (const Slot& slot : former) {
    if (slot.entry != nullptr) FreeSlot(slot.hash) = slot;
  }
}

intProjectConstant& intProjectConstants::NewLevel(intProjectConstant* group) {
  intProjectConstant& level = entries_.emplace_back();
  level.group = group;
  return level;
}

intProjectConstant& intProjectConstants::NewEntry(intProjectConstant& level,
                                                  std::u16string_view name) {
  intProjectConstant* entry = &level;
  if (!level.IsUnused) {
    entry = &entries_.emplace_back();
    entry->group = level.group;
    level.lastSibling->nextSibling = entry;
    level.lastSibling = entry;
    ++level.siblings;
  }
  entry->IsUnused = false;
  entry->Name = name;
  if (level.table != nullptr) {
    level.table->Add(*entry);
  } else if (level.siblings > kMostSearched) {
    level.table = TableOf(level);
  }
  return *entry;
}

// A name may have any number of segments, so the levels are followed in a loop.
void intProjectConstants::AddRecursive(intProjectConstant& level, std::u16string_view name,
                                       std::u16string_view type, std::u16string_view value) {
  for (intProjectConstant* at = &level;;) {
    const std::u16string_view first = TextBeforeFirstDot(name);
    name = TextAfterFirstDot(name);
    intProjectConstant* entry = Find(*at, first);
    if (name.empty()) {
      if (entry != nullptr) return;
      entry = &NewEntry(*at, first);
      entry->Type = type;
      entry->Value = value;
      return;
    }
    if (entry == nullptr || entry->IsUnused) entry = &NewEntry(*at, first);
    if (entry->SubLevel == nullptr) entry->SubLevel = &NewLevel(entry);
    at = entry->SubLevel;
  }
}

void intProjectConstants::Write(XMLStringWriter& writer, const ProjectConstants& list) {
  if (list.Count() == 0) return;
  if (AreOrdered(list)) return WriteOrdered(list, writer, allowance_);
  intProjectConstant& root = NewLevel(nullptr);
  for (const ProjectConstant& constant : list) {
    AddRecursive(root, constant.Name.get(), constant.PCType, constant.Value);
  }
  const intProjectConstant* entry = &root;
  size_t groups = 0;  // The length of their names, with dots.
  while (entry != nullptr) {
    allowance_.CountElement(entry->Name);
    writer.WriteStartElement(kEntry);
    writer.WriteAttributeString(u"Name", entry->Name);
    if (entry->SubLevel != nullptr) {
      writer.WriteStartElement(kGroup);
      groups += entry->Name.size() + 1;
      entry = entry->SubLevel;
      continue;
    }
    if (!allowance_.Allows(groups + entry->Name.size())) throw Overflow();
    writer.WriteElementString(u"Type", entry->Type);
    writer.WriteElementString(u"Value", entry->Value);
    writer.WriteEndElement(kEntry);
    while (entry->nextSibling == nullptr && entry->group != nullptr) {
      entry = entry->group;
      groups -= entry->Name.size() + 1;
      writer.WriteEndElement(kGroup);
      writer.WriteEndElement(kEntry);
    }
    entry = entry->nextSibling;
  }
}

void intProjectConstants::Read(XmlCursor& cursor, ProjectConstants& list) {
  ReadLevel(cursor, list);
}

void intProjectConstants::ReadLevel(XmlCursor& cursor, ProjectConstants& list) {
  while (!cursor.name().empty()) {
    const size_t outer = groups_.size();
    groups_ += cursor.ReadAttribute(u"Name");
    allowance_.CountElement(std::u16string_view(groups_).substr(outer));
    const XmlNode entry = cursor.node();
    if (entry.recorder() != nullptr) RecordEntry(entry, groups_);
    cursor.Enter();
    if (cursor.name() == kGroup) {
      // A group without a name adds nothing to the first level.
      if (!groups_.empty()) groups_ += u'.';
      cursor.Enter();
      ReadLevel(cursor, list);
      cursor.Leave();
    } else {
      if (!allowance_.Allows(groups_.size())) throw Overflow().At(entry.place());
      ReadConstant(cursor, list);
    }
    cursor.Leave();
    groups_.resize(outer);
  }
}

// A dot in a name divides levels as groups do, and what is then one constant is written once.
void intProjectConstants::RecordEntry(const XmlNode& node, const Text& name) {
  LossRecorder& recorder = *node.recorder();
  recorder.Take(node);
  recorder.ReadAs(node, kEntry);
  const XmlAttribute& given = *node.attribute(u"Name");
  if (given.value().empty() || given.value().find(u'.') != std::u16string_view::npos) {
    recorder.Note(LossKind::Changed, node, u"'" + name + u"' was read as a name with its groups",
                  &given);
  }
  const XmlNode child = node.firstChild();
  if (child.nodeName() == kGroup) {
    recorder.Take(child);
    if (child.firstChild()) return;
    return recorder.Note(LossKind::NotRead, child, u"a group without constants was not read");
  }
  if (recorded_.ConflictsWith(name)) {
    recorder.Note(
        LossKind::NotWritten, node,
        u"'" + name + u"' is the name or the group of another constant, which is written");
  }
  recorded_.Add(name);
}

void intProjectConstants::ReadConstant(XmlCursor& cursor, ProjectConstants& list) {
  // Whatever stands in the two places is taken for the type and the value.
  cursor.RequireChildren(2);
  const Text type = cursor.ReadRequiredText(u"Type");
  list.Add(ProjectConstant::Form()(groups_, type, cursor.ReadRequiredText(u"Value")));
}

}  // namespace praxen::detail
