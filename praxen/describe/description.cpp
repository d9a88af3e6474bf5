// Interface tables from members, and look-up by name and identifier.
#include "praxen/describe/description.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "praxen/core/ascii.h"

namespace praxen::describe {

namespace {

constexpr std::string_view kRequired = "; required for writing";

void AppendMembers(std::vector<const void*>& table, const Members& members) {
  for (const Member& member : members) {
    if (member.put != nullptr && member.putFirst) table.push_back(member.put);
    table.push_back(member.get);
    if (member.put != nullptr && !member.putFirst) table.push_back(member.put);
  }
}

const Publication*& FirstPublication() noexcept {
  static constinit const Publication* first = nullptr;
  return first;
}

}  // namespace

Publication::Publication(const ClassDescription& (*describe)()) noexcept
    : describe_(describe), next_(std::exchange(FirstPublication(), this)) {}

const Publication* Publication::first() noexcept { return FirstPublication(); }

void StateRequired(Members& members, const Layout& layout) {
  const auto state = [&](std::string_view property) {
    const auto member = std::ranges::find(members, property, &Member::name);
    if (member != members.end()) member->help.insert(member->help.size() - 1, kRequired);
  };
  for (const Attribute& attribute : layout.attributes) {
    if (attribute.rule == Rule::Required) state(attribute.property);
  }
  for (const Child& child : layout.children) {
    if (child.kind == ChildKind::Unnamed) state(child.property);
  }
}

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
      members, [&](const Member& member) { return EqualsIgnoringCase(member.name, memberName); });
  if (found != members.end()) return &*found;
  return kind == nullptr ? nullptr : kind->FindMember(memberName);
}

const Member* ClassDescription::FindMember(int32_t id) const noexcept {
  const auto found = std::ranges::find(members, id, &Member::id);
  if (found != members.end()) return &*found;
  return kind == nullptr ? nullptr : kind->FindMember(id);
}

}  // namespace praxen::describe
