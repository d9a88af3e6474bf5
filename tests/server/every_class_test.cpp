// Every class that clients can create, used by name alone.
#include <gtest/gtest.h>

#include "praxen/core/text.h"
#include "praxen/describe/reflection.h"
#include "praxen/factory/classes.h"
#include "praxen/server/registration.h"
#include "tests/server/client.h"

namespace praxen::detail::client {
namespace {

// A value that differs from every creation value of the type.
Variant OtherValue(const ValueType& type, const Variant& value) {
  using std::type_identity;
  return VisitType(
      type, Overloaded{[&](type_identity<bool>) { return Variant(value.boolVal == VARIANT_FALSE); },
                       [&](type_identity<int32_t>) { return Variant(value.lVal + 7); },
                       [&](type_identity<EnumerationDescription>) {
                         return Variant(value.lVal == 0 ? 1 : 0);
                       },
                       [&](type_identity<double>) { return Variant(value.dblVal + 0.5); },
                       [&](type_identity<Object>) {
                         return Variant(Create(ClassesOf(type.object()).front()->name).Get());
                       },
                       [](auto) { return Variant(u"\u00E4 & <\u20AC>"); }});
}

bool AreEqual(const Variant& left, const Variant& right) {
  if (left.vt != right.vt) return false;
  switch (left.vt) {
    case VT_BSTR:
      return left.View() == right.View();
    case VT_R8:
      return left.dblVal == right.dblVal;
    case VT_BOOL:
      return left.boolVal == right.boolVal;
    case VT_DISPATCH:
      return left.pdispVal == right.pdispVal;
    default:
      return left.lVal == right.lVal;
  }
}

void SetAndReadBack(const Handle& object, const Member& member) {
  SCOPED_TRACE(member.name);
  const std::u16string name = FromUtf8(member.name);
  const Variant created = Get(object, name);
  const Variant given = OtherValue(member.type, created);
  EXPECT_EQ(Put(object, name, given).result, S_OK);
  EXPECT_TRUE(AreEqual(Get(object, name), given));
  EXPECT_FALSE(AreEqual(Get(object, name), created));
  EXPECT_EQ(Put(object, name, created).result, S_OK);
  EXPECT_TRUE(AreEqual(Get(object, name), created));
}

TEST(EveryClass, KeepsEveryPropertyAndLeavesNothingBehind) {
  const int32_t before = CountedObjects();
  size_t properties = 0;
  for (const ClassDescription* const description : CreatableClasses()) {
    SCOPED_TRACE(description->name);
    const Handle object = Create(description->name);
    ASSERT_TRUE(object);
    // A kind on its own keeps nothing.
    if (description->isKind) continue;
    for (const Member& member : description->members) {
      if (member.put == nullptr) continue;
      SetAndReadBack(object, member);
      ++properties;
    }
  }
  EXPECT_GT(properties, 300u);
  EXPECT_EQ(CountedObjects(), before);
}

TEST(EveryClass, HasEachOfItsNamesAndIdentifiersOnce) {
  for (const ClassDescription& description : AllClasses()) {
    SCOPED_TRACE(description.name);
    for (const Member& member : description.members) {
      std::u16string name = FromUtf8(member.name);
      EXPECT_EQ(description.FindMember(name), &member);
      EXPECT_EQ(description.FindMember(member.id), &member);
      EXPECT_FALSE(member.help.empty()) << member.name;
      for (const auto& parameter : member.parameters) EXPECT_FALSE(parameter.name.empty());
    }
  }
}

}  // namespace
}  // namespace praxen::detail::client
