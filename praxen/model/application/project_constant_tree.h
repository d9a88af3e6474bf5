// The tree of project constants, which exists while a list of them is written or read.
#ifndef PRAXEN_MODEL_APPLICATION_PROJECT_CONSTANT_TREE_H_
#define PRAXEN_MODEL_APPLICATION_PROJECT_CONSTANT_TREE_H_

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "praxen/core/counters.h"
#include "praxen/model/application/dotted_name_index.h"
#include "praxen/model/application/name_allowance.h"
#include "praxen/model/application/project_constant.h"
#include "praxen/xml/xml_cursor.h"

namespace praxen::detail {

class XMLStringWriter;

struct intProjectConstant;

/// Finds the entries of a level by name; open addressing keeps a look-up to one place in memory.
class EntryTable {
 public:
  void Add(intProjectConstant& entry);
  /// Null when there is none of that name.
  intProjectConstant* Find(std::u16string_view name) const noexcept;

 private:
  struct Slot {
    size_t hash = 0;
    intProjectConstant* entry = nullptr;
  };

  Slot& FreeSlot(size_t hash) noexcept;
  void Grow();

  // A power of two, at least half of them free.
  std::vector<Slot> slots_ = std::vector<Slot>(32);
  size_t count_ = 0;
};

/// An entry of a level of the tree: a constant, or a group when it has a level below. The first
/// entry stands for its level, and is unused until the level is given a name.
struct intProjectConstant {
  intProjectConstant() { CountObject(); }
  intProjectConstant(const intProjectConstant&) = delete;
  intProjectConstant& operator=(const intProjectConstant&) = delete;
  ~intProjectConstant() { UncountObject(); }

  /// One segment of a dotted name.
  std::u16string_view Name;
  std::u16string_view Type, Value;
  bool IsUnused = true;
  /// The first entry of the level below.
  intProjectConstant* SubLevel = nullptr;
  /// The group whose level the entry stands on; null on the top level.
  intProjectConstant* group = nullptr;
  intProjectConstant* nextSibling = nullptr;

  // Of the first entry of a level.

  intProjectConstant* lastSibling = this;
  size_t siblings = 1;
  /// The entries of the level; null while they are few.
  std::unique_ptr<EntryTable> table = nullptr;
};

/// Converts between the list of constants with dotted names and the nested elements. Takes time in
/// proportion to the names, and no more stack for deep groups when writing.
class intProjectConstants {
 public:
  intProjectConstants() { CountObject(); }
  intProjectConstants(const intProjectConstants&) = delete;
  intProjectConstants& operator=(const intProjectConstants&) = delete;
  ~intProjectConstants() { UncountObject(); }

  /// Writes the elements of the top level; nothing for an empty list. Of several constants of one
  /// name only the first is written, and of one whose name is also a group only the group. Raises
  /// `NestedTooDeep` beyond `kMaxXmlDepth` elements, and `Overflow` as `Read` does. The list does
  /// not change meanwhile.
  void Write(XMLStringWriter& writer, const ProjectConstants& list);
  /// Appends the constants of the elements from the cursor on, depth first. Raises `Overflow` when,
  /// up to any of them, their dotted names have together more characters than `NameAllowance`
  /// allows.
  void Read(XmlCursor& cursor, ProjectConstants& list);

 private:
  intProjectConstant& NewLevel(intProjectConstant* group);
  intProjectConstant& NewEntry(intProjectConstant& level, std::u16string_view name);
  void AddRecursive(intProjectConstant& level, std::u16string_view name, std::u16string_view type,
                    std::u16string_view value);
  void ReadLevel(XmlCursor& cursor, ProjectConstants& list);
  void RecordEntry(const XmlNode& node, const Text& name);
  /// The constant whose name is `groups_`.
  void ReadConstant(XmlCursor& cursor, ProjectConstants& list);

  std::deque<intProjectConstant> entries_;
  /// The names of the constants read, while their reading is recorded.
  DottedNameIndex recorded_;
  /// The names of the groups around what is read, each with its dot, and that of what is read.
  std::u16string groups_;
  NameAllowance allowance_;
};

}  // namespace praxen::detail

#endif  // PRAXEN_MODEL_APPLICATION_PROJECT_CONSTANT_TREE_H_
