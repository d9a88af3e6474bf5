// All published classes: those of the families of the model, ObjectFactory and maintenance.
#include "praxen/factory/classes.h"

#include <algorithm>
#include <vector>

#include "praxen/core/ascii.h"

namespace praxen::detail {

namespace {

std::vector<std::reference_wrapper<const ClassDescription>> DescribeAll() {
  std::vector<std::reference_wrapper<const ClassDescription>> classes;
  for (const Publication* each = Publication::first(); each != nullptr; each = each->next()) {
    classes.push_back(each->description());
  }
  std::ranges::sort(classes, [](const ClassDescription& a, const ClassDescription& b) {
    return LessIgnoringCase(a.name, b.name);
  });
  return classes;
}

}  // namespace

std::span<const std::reference_wrapper<const ClassDescription>> AllClasses() {
  static const std::vector<std::reference_wrapper<const ClassDescription>> classes = DescribeAll();
  return classes;
}

std::vector<const ClassDescription*> ClassesOf(const ClassDescription& wanted) {
  if (!wanted.isKind) return {&wanted};
  std::vector<const ClassDescription*> classes;
  for (const ClassDescription& description : AllClasses()) {
    if (description.kind == &wanted) classes.push_back(&description);
  }
  return classes;
}

const ClassDescription* FindClass(std::u16string_view name) {
  for (const ClassDescription& description : AllClasses()) {
    if (EqualsIgnoringCase(description.name, name)) return &description;
  }
  return nullptr;
}

const ClassDescription* FindClassById(const Uuid& id) {
  for (const ClassDescription& description : AllClasses()) {
    if (description.classId == id) return &description;
  }
  return nullptr;
}

}  // namespace praxen::detail
