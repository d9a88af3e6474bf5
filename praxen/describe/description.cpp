// Interface tables from members, and look-up by name and identifier.
#include "praxen/describe/description.h"

#include <algorithm>

namespace praxen {

namespace {

constexpr char16_t ToLower(char16_t character) {
  return character >= u'A' && character <= u'Z' ? static_cast<char16_t>(character + 32) : character;
}

bool IsName(std::string_view name, std::u16string_view given) {
  return std::equal(name.begin(), name.end(), given.begin(), given.end(), [](char n, char16_t g) {
    return ToLower(static_cast<char16_t>(n)) == ToLower(g);
  });
}

void AppendMembers(std::vector<const void*>& table, const Members& members) {
  for (const Member& member : members) {
    if (member.put != nullptr && member.putFirst) table.push_back(member.put);
    table.push_back(member.get);
    if (member.put != nullptr && !member.putFirst) table.push_back(member.put);
  }
}

}  // namespace

ClassDescription::ClassDescription(ClassFacts facts) : ClassFacts(std::move(facts)) {
  int32_t id = isKind ? kFirstKindMemberId : 1;
  for (Member& member : members) {
    if (!member.hasFixedId) member.id = id;
    ++id;
  }
  table_.push_back(this);
  table_.insert(table_.end(), head.begin(), head.end());
  if (!isKind) {
    AppendMembers(table_, members);
    return;
  }
  kind_table_.push_back(this);
  kind_table_.insert(kind_table_.end(), kindHead.begin(), kindHead.end());
  AppendMembers(kind_table_, members);
}

const Member* ClassDescription::FindMember(std::u16string_view memberName) const noexcept {
  const auto found = std::ranges::find_if(
      members, [&](const Member& member) { return IsName(member.name, memberName); });
  if (found != members.end()) return &*found;
  return kind == nullptr ? nullptr : kind->FindMember(memberName);
}

const Member* ClassDescription::FindMember(int32_t id) const noexcept {
  const auto found = std::ranges::find(members, id, &Member::id);
  if (found != members.end()) return &*found;
  return kind == nullptr ? nullptr : kind->FindMember(id);
}

const ClassDescription* FindClass(std::u16string_view name) noexcept {
  for (const auto describe : AllClasses()) {
    if (IsName(describe().name, name)) return &describe();
  }
  return nullptr;
}

}  // namespace praxen
