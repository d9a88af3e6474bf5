// Choosing, keeping and taking apart of objects.
#include "fuzz/object_pool.h"

#include <algorithm>

#include "praxen/automation/values.h"
#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"
#include "praxen/xml/xml_limits.h"

namespace praxen::detail {

namespace {

constexpr size_t kMostObjects = 100;
// Calls prefer these, so that they build on each other.
constexpr size_t kMostRecent = 6;
constexpr size_t kMostWritten = 3000;

// The classes that clients can create and that stand for the class or kind, which may be used on
// its own.
std::vector<const ClassDescription*> ClassesFor(const ClassDescription& wanted) {
  std::vector<const ClassDescription*> classes = ClassesOf(wanted);
  if (wanted.isKind) classes.push_back(&wanted);
  std::erase_if(classes, [](const ClassDescription* found) { return found->create == nullptr; });
  return classes;
}

void Clear(Object& object) {
  for (const Member& member : object.description().members) {
    if (IsKeptObject(member)) SetHeld(object, member, nullptr);
  }
  const Member* const remove = object.description().FindMember(u"Remove");
  if (object.elements() == nullptr || remove == nullptr) return;
  const Variant first(int32_t{1});
  const VARIANT* const position = &first;
  while (!object.elements()->empty()) {
    Variant none;
    remove->invokeGet(object, &position, none);
  }
}

// Takes what the object needs to be written from `left`; false when that is used up.
bool Count(Object& object, size_t depth, size_t& left) {
  // Writing fails there as well.
  if (depth > kMaxXmlDepth) return true;
  if (left == 0) return false;
  --left;
  for (const Member& member : object.description().members) {
    Object* const held = Held(object, member);
    if (held != nullptr && !Count(*held, depth + 1, left)) return false;
  }
  return std::ranges::all_of(ElementsOf(object), [&](const Ref<Object>& element) {
    return !element || Count(*element, depth + 1, left);
  });
}

}  // namespace

IDispatch* AsDispatch(Object& object) {
  return reinterpret_cast<IDispatch*>(static_cast<Interface*>(&object));
}

ObjectPool::ObjectPool(FuzzInput& input) {
  const auto classes = AllClasses();
  for (int i = 0; i < 3; ++i) {
    const ClassDescription& description = classes[input.Below(classes.size())];
    if (description.create != nullptr) Create(description);
  }
}

// Objects that only a list or a property holds are reached through those that hold them.
ObjectPool::~ObjectPool() {
  for (const Ref<Object>& object : objects_) Clear(*object);
}

Object* ObjectPool::Choose(FuzzInput& input) const {
  if (objects_.empty()) return nullptr;
  const size_t count = objects_.size();
  const size_t range = input.OneIn(2) ? count : std::min(count, kMostRecent);
  return objects_[count - 1 - input.Below(range)].get();
}

Object* ObjectPool::Choose(FuzzInput& input, const ClassDescription& wanted) {
  std::vector<Object*> fitting;
  for (const Ref<Object>& object : objects_) {
    const ClassDescription& description = object->description();
    if (&description == &wanted || description.kind == &wanted) fitting.push_back(object.get());
  }
  const bool full = objects_.size() >= kMostObjects;
  const size_t chosen = input.Below(fitting.size() + (full ? 0 : 1));
  if (chosen < fitting.size()) return fitting[chosen];
  const auto classes = ClassesFor(wanted);
  if (full || classes.empty()) return nullptr;
  Create(*classes[input.Below(classes.size())]);
  return objects_.back().get();
}

void ObjectPool::Keep(const VARIANT& result) {
  if (result.vt != VT_DISPATCH || objects_.size() >= kMostObjects) return;
  const Ref<Object> object = detail::ObjectFromVariant(result, nullptr);
  if (object && std::ranges::find(objects_, object) == objects_.end()) objects_.push_back(object);
}

void ObjectPool::Create(const ClassDescription& description) {
  objects_.push_back(description.create());
}

bool IsSmall(Object& object) {
  size_t left = kMostWritten;
  return Count(object, 0, left);
}

}  // namespace praxen::detail
