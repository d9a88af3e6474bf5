// Project constants whose names are in order.
#include "praxen/model/application/ordered_constants.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

#include "praxen/core/error.h"

namespace praxen::detail {

namespace {

constexpr char16_t kDot = u'.';

// How many characters two names have in common.
size_t CommonSize(std::u16string_view one, std::u16string_view other) {
  const size_t size = std::min(one.size(), other.size());
  size_t at = 0;
  for (uint64_t first, second; at + 4 <= size; at += 4) {
    std::memcpy(&first, one.data() + at, sizeof first);
    std::memcpy(&second, other.data() + at, sizeof second);
    if (first != second) break;
  }
  while (at < size && one[at] == other[at]) ++at;
  return at;
}

// Whether a segment of the name is empty, when none before the index is.
bool HasEmptySegment(std::u16string_view name, size_t from) {
  bool isAfterDot = from == 0 || name[from - 1] == kDot;
  for (; from < name.size(); ++from) {
    const bool isDot = name[from] == kDot;
    if (isDot && isAfterDot) return true;
    isAfterDot = isDot;
  }
  return isAfterDot;
}

// Whether the name is behind the one before, with which it has so many characters in common, and
// neither is the group of the other.
bool Follows(std::u16string_view name, std::u16string_view before, size_t common) {
  if (common == name.size()) return false;
  if (common == before.size()) return name[common] != kDot;
  return name[common] != kDot && (before[common] == kDot || before[common] < name[common]);
}

struct Markup {
  XmlPiece start{u"<ProjectConstant Name='"}, end{u"</ProjectConstant>\n"};
  XmlPiece groupStart{u"<ProjectConstants>\n"}, groupEnd{u"</ProjectConstants>\n"};
  XmlTags type{u"Type"}, value{u"Value"};
};

class OrderedWriting {
 public:
  OrderedWriting(XMLStringWriter& writer, NameAllowance& allowance)
      : writer_(writer), allowance_(allowance) {}

  void Write(const ProjectConstant& constant) {
    const std::u16string_view name = constant.Name.get();
    const std::u16string_view before = std::exchange(before_, name);
    const size_t shared = name.substr(0, CommonSize(name, before)).rfind(kDot) + 1;
    CloseGroups(before.substr(shared));
    WriteConstant(OpenGroups(name.substr(shared)), constant);
  }

  void Finish() { CloseGroups(before_); }

 private:
  // Those that a rest of a name is in.
  void CloseGroups(std::u16string_view rest) {
    for (size_t dot; (dot = rest.find(kDot)) != std::u16string_view::npos;
         rest.remove_prefix(dot + 1)) {
      XmlPen pen = writer_.Pen();
      pen.Reserve(markup_.groupEnd.room() + markup_.end.room());
      pen.Put(markup_.groupEnd);
      pen.Put(markup_.end);
      pen.Finish();
      writer_.Leave(2);
    }
  }

  // The same, and returns the name within the last of them.
  std::u16string_view OpenGroups(std::u16string_view rest) {
    for (size_t dot; (dot = rest.find(kDot)) != std::u16string_view::npos;
         rest.remove_prefix(dot + 1)) {
      XmlPen pen = writer_.Pen();
      PutName(rest.substr(0, dot), pen);
      pen.Reserve(markup_.groupStart.room());
      pen.Put(markup_.groupStart);
      pen.Finish();
      writer_.Enter(2);
    }
    return rest;
  }

  void WriteConstant(std::u16string_view ownName, const ProjectConstant& constant) {
    XmlPen pen = writer_.Pen();
    PutName(ownName, pen);
    if (!allowance_.Allows(constant.Name.get().size())) throw Overflow();
    writer_.RequireDepth(2);
    pen.PutText(markup_.type, constant.PCType);
    pen.PutText(markup_.value, constant.Value);
    pen.Reserve(markup_.end.room());
    pen.Put(markup_.end);
    pen.Finish();
  }

  [[gnu::always_inline]] void PutName(std::u16string_view name, XmlPen& pen) {
    allowance_.CountElement(name);
    writer_.RequireDepth(1);
    pen.Reserve(XMLStringWriter::kMostTagEnd);
    writer_.CloseStartTag(pen);
    pen.PutAttribute(markup_.start, name);
    pen.PutStartTagEnd();
  }

  XMLStringWriter& writer_;
  NameAllowance& allowance_;
  const Markup markup_;
  /// The name of the constant before.
  std::u16string_view before_;
};

}  // namespace

bool AreOrdered(const ProjectConstants& list) {
  std::u16string_view before;
  for (const ProjectConstant& constant : list) {
    const std::u16string_view name = constant.Name.get();
    const size_t common = CommonSize(name, before);
    if (!before.empty() && !Follows(name, before, common)) return false;
    if (HasEmptySegment(name, common)) return false;
    before = name;
  }
  return true;
}

void WriteOrdered(const ProjectConstants& list, XMLStringWriter& writer, NameAllowance& allowance) {
  OrderedWriting writing(writer, allowance);
  for (const ProjectConstant& constant : list) writing.Write(constant);
  writing.Finish();
}

}  // namespace praxen::detail
