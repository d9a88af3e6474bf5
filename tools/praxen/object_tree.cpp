// Walks objects and what they hold by their descriptions.
#include "tools/praxen/object_tree.h"

#include "praxen/automation/values.h"

namespace praxen::detail {

namespace {

size_t CountBelow(Object& object) {
  size_t count = 0;
  for (const Child& child : ChildrenOf(object.description())) {
    Object* const held = Held(object, child);
    if (held == nullptr) continue;
    count += held->elements() == nullptr ? CountObjects(*held) : CountBelow(*held);
  }
  if (object.elements() == nullptr) return count;
  for (const Ref<Object>& element : *object.elements()) count += CountObjects(*element);
  return count;
}

template <class T>
T Stored(Object& object, const Member& member) {
  if (member.storage != nullptr) return *static_cast<const T*>(member.storage(object));
  Variant result;
  member.invokeGet(object, nullptr, result);
  T value{};
  member.type.fromVariant(&value, result);
  return value;
}

}  // namespace

const std::vector<Attribute>& AttributesOf(const ClassDescription& description) {
  static const std::vector<Attribute> none;
  return description.layout == nullptr ? none : description.layout().attributes;
}

const std::vector<Child>& ChildrenOf(const ClassDescription& description) {
  static const std::vector<Child> none;
  return description.layout == nullptr ? none : description.layout().children;
}

std::optional<Value> ValueOf(Object& object, const Member& member) {
  if (member.storage == nullptr && member.put == nullptr) return {};
  switch (member.type.kind) {
    case ValueKind::Text:
      return Stored<Text>(object, member);
    case ValueKind::Boolean:
      return Stored<bool>(object, member);
    case ValueKind::Double:
      return Stored<double>(object, member);
    case ValueKind::Integer:
    case ValueKind::Enumeration:
      return Stored<int32_t>(object, member);
    default:
      return {};
  }
}

Object* Held(Object& object, const Child& child) {
  return child.held == nullptr ? nullptr : child.held(object);
}

size_t CountObjects(Object& object) { return 1 + CountBelow(object); }

}  // namespace praxen::detail
