// The names of project constants, which `Add1` keeps free of conflicts, and their tree in XML.
#include "praxen/model/application/project_constant.h"

#include "praxen/model/application/project_constant_tree.h"

namespace praxen {

using namespace detail;

ProjectConstants::~ProjectConstants() { DropIndex(); }

void ProjectConstants::RequireAddable(const ProjectConstant& created) {
  const Text& name = created.Name;
  if (names_ != nullptr && !names_->valid()) DropIndex();
  if (names_ == nullptr) IndexNames(name);
  if (names_->ConflictsWith(name)) throw NameConflict();
}

void ProjectConstants::IndexNames(const Text& name) {
  names_ = std::make_unique<DottedNameIndex>();
  try {
    for (ProjectConstant& constant : *this) constant.Name.Join(*names_);
  } catch (...) {
    // Names are tested in list order: one before an empty reference may conflict already.
    const bool conflicts = names_->ConflictsWith(name);
    DropIndex();
    if (conflicts) throw NameConflict();
    throw;
  }
}

void ProjectConstants::DropIndex() noexcept {
  if (names_ == nullptr) return;
  for (const Ref<Object>& element : *elements()) {
    if (element) static_cast<ProjectConstant&>(*element).Name.Leave(*names_);
  }
  names_.reset();
}

void ProjectConstants::ElementAdded(Object* element) noexcept {
  if (names_ == nullptr) return;
  if (element == nullptr) return DropIndex();
  try {
    static_cast<ProjectConstant&>(*element).Name.Join(*names_);
  } catch (...) {
    DropIndex();
  }
}

void ProjectConstants::ElementRemoved(Object* element) noexcept {
  if (names_ == nullptr) return;
  ConstantName& name = static_cast<ProjectConstant&>(*element).Name;
  name.Leave(*names_);
  names_->Remove(name.get());
}

Members ProjectConstants::members() {
  Members places = positions();
  const Members names = lookups();
  places.insert(places.begin() + 1, names.begin(), names.end());
  return Members{serialize(), add(), addBefore(),
                 creation<ProjectConstant::Form>(
                     "Add1",
                     "Creates a constant with the given values and appends it; its name must not "
                     "conflict with one in the list.")} +
         places;
}

Layout ProjectConstants::layout() {
  return {.children = {custom<&T::WriteTree, &T::ReadTree>(
              "A group holds its members in a ProjectConstants element; a constant holds its Type "
              "and its Value.",
              {{u"ProjectConstant", ElementShape::Content::Children, {u"Name"}},
               {u"Type"},
               {u"Value"}})}};
}

void ProjectConstants::WriteTree(XMLStringWriter& writer) {
  intProjectConstants().Write(writer, *this);
}

void ProjectConstants::ReadTree(XmlCursor& cursor) { intProjectConstants().Read(cursor, *this); }

}  // namespace praxen
