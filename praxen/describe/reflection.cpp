// The objects that an object holds, and what a class's layout tells of its members.
#include "praxen/describe/reflection.h"

#include <algorithm>

namespace praxen::describe {

namespace {

Object& HeldOrCreatedAt(const ValueType& type, void* reference) {
  if (Object* const held = type.held(reference)) return *held;
  const ClassDescription& description = type.object();
  if (description.create == nullptr) ThrowTypeMismatch();
  type.hold(reference, description.create().get());
  return *type.held(reference);
}

template <class Entry>
const Entry* EntryOf(std::span<const Entry> entries, const Member& member) {
  const auto found = std::ranges::find(entries, &member, &Entry::member);
  return found == entries.end() ? nullptr : &*found;
}

}  // namespace

Value ReadProperty(Object& object, const Member& member) {
  Value read;
  VisitProperty(
      object, member,
      Overloaded{[&](const Text& value) { read = value; }, [&](const bool& value) { read = value; },
                 [&](const int32_t& value) { read = value; },
                 [&](const double& value) { read = value; }});
  return read;
}

Object* Held(Object& object, const Member& member) {
  return IsKeptObject(member) ? member.type.held(member.storage(object)) : nullptr;
}

Object& HeldOrCreated(Object& object, const Member& member) {
  return HeldOrCreatedAt(member.type, member.storage(object));
}

Object& HeldOrCreated(Object& object, const Child& child) {
  return HeldOrCreatedAt(child.type, ValueOf(child, object));
}

void SetHeld(Object& object, const Member& member, Object* held) {
  member.type.hold(member.storage(object), held);
}

std::span<const Ref<Object>> ElementsOf(const Object& object) {
  const std::vector<Ref<Object>>* const elements = object.elements();
  return elements == nullptr ? std::span<const Ref<Object>>() : *elements;
}

std::span<const Attribute> AttributesOf(const ClassDescription& description) {
  if (description.layout == nullptr) return {};
  return description.layout().attributes;
}

std::span<const Child> ChildrenOf(const ClassDescription& description) {
  if (description.layout == nullptr) return {};
  return description.layout().children;
}

const Attribute* AttributeOf(const ClassDescription& description, const Member& member) {
  return EntryOf(AttributesOf(description), member);
}

const Child* ChildOf(const ClassDescription& description, const Member& member) {
  return EntryOf(ChildrenOf(description), member);
}

Object& NewObjects::Like(const Object& object) {
  const ClassDescription& description = object.description();
  Ref<Object>& created = objects_[&description];
  if (!created) created = description.create();
  return *created;
}

bool IsDocument(const ClassDescription& description) {
  return description.isSerializable && description.create != nullptr &&
         description.layout != nullptr;
}

}  // namespace praxen::describe
