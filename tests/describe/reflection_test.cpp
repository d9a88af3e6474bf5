// Reflection: values, held objects, and the members that attributes and children belong to.
#include "praxen/describe/reflection.h"

#include <gtest/gtest.h>

#include "praxen/factory/classes.h"
#include "praxen/praxen.h"
#include "tests/support/documents.h"

namespace praxen::detail {
namespace {

const Member& MemberOf(const Object& object, std::u16string_view name) {
  return *object.description().FindMember(name);
}

// Whether entries of a layout belong to the members that keep the same values.
template <class Entries>
size_t CountJoined(const Entries& entries, Object& object) {
  size_t joined = 0;
  for (const auto& entry : entries) {
    if (entry.member == nullptr || entry.member->storage == nullptr) continue;
    EXPECT_EQ(entry.member->storage(object), ValueOf(entry, object)) << entry.member->name;
    EXPECT_EQ(entry.member->type.kind, entry.type.kind) << entry.member->name;
    ++joined;
  }
  return joined;
}

TEST(Reflection, JoinsAttributesAndChildrenToTheirMembers) {
  size_t joined = 0;
  for (const ClassDescription& description : AllClasses()) {
    if (description.layout == nullptr) continue;
    SCOPED_TRACE(description.name);
    const Ref<Object> object = description.create();
    joined += CountJoined(AttributesOf(description), *object);
    joined += CountJoined(ChildrenOf(description), *object);
  }
  EXPECT_GT(joined, 250u);
}

TEST(Reflection, ReadsAndChangesAPropertyBehindFunctions) {
  const auto constant = New<ProjectConstant>();
  const Member& name = MemberOf(*constant, u"Name");
  ASSERT_EQ(name.storage, nullptr);
  ChangeProperty(*constant, name, Overloaded{[](Text& text) { text = u"a.b"; }, [](auto&&) {}});
  EXPECT_EQ(constant->GetName(), u"a.b");
  EXPECT_EQ(ReadProperty(*constant, name), Value(Text(u"a.b")));
}

TEST(Reflection, HoldsObjectsOfTheRightClassOnly) {
  const auto program = New<Program>();
  const Member& variables = MemberOf(*program, u"Variables");
  const Ref<Variables> before = program->Variables;
  EXPECT_NE(ErrorOf([&] { SetHeld(*program, variables, program.get()); }), "none");
  EXPECT_EQ(Held(*program, variables), before.get());
  SetHeld(*program, variables, nullptr);
  EXPECT_EQ(Held(*program, variables), nullptr);
  const Object& created = HeldOrCreated(*program, variables);
  EXPECT_EQ(&created, program->Variables.get());
  EXPECT_NE(ErrorOf([&] { ReadProperty(*program, variables); }), "none");
}

TEST(Reflection, NamesTheClassesOfAKind) {
  EXPECT_EQ(ClassesOf(Describe<ICodeBlock>()).size(), 6u);
  EXPECT_EQ(ClassesOf(Describe<Task>()), std::vector{&Describe<Task>()});
}

}  // namespace
}  // namespace praxen::detail
